#include "hosts/desktop/window/commands.h"

#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/faces/icons.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/command_keys.h"
#include "platform/forms/keys.h"

namespace awizo::desktop {
Commands::Commands(AwizoForm& form, FormFace& faces, QWidget& window)
    : QObject(&window), faces_(faces), menus_(commandMenus(form)) {
  for (const CommandMenu& menu : menus_) {
    for (const std::vector<Command>& group : menu.groups) {
      for (const Command& command : group) {
        if (command.button != nullptr) add(command, window);
      }
    }
  }
  follow();
}

void Commands::add(const Command& command, QWidget& window) {
  auto* action = new QAction(iconNamed(fromText(command.icon)), fromText(command.words), this);
  entries_[command.button] = {&command, action};
  connect(action, &QAction::triggered, this, [this, &command] { press(command); });
  faces_.button(*command.button).beforePress = [this, &command] { showRow(command); };
  giveKeys(command, *action, window);
}

void Commands::showRow(const Command& command) {
  if (!command.onCurrentRow) return;
  faces_.table(static_cast<const Table&>(*command.place)).bringRowIntoView();
}

void Commands::giveKeys(const Command& command, QAction& action, QWidget& window) {
  QList<QKeySequence> all;
  for (const CommandKey& key : command.keys) {
    all << keysOf(key);
    // The key of the number pad is as good.
    if (key.code != keys::enter) continue;
    all << QKeySequence(Qt::Key_Enter);
    if (command.place == nullptr || command.place->kind() != ControlKind::table) continue;
    // A double click does what Enter does.
    faces_.table(static_cast<const Table&>(*command.place)).afterDoubleClick = [this, &command] {
      press(command);
    };
  }
  action.setShortcuts(all);
  action.setShortcutContext(command.place == nullptr ? Qt::WidgetWithChildrenShortcut
                                                     : Qt::WidgetShortcut);
  (command.place == nullptr ? window : *faces_.widget(*command.place)).addAction(&action);
  // The button's tip shows its key.
  const QString tip =
      fromText(command.plainWords()) + " (" + all.front().toString(QKeySequence::NativeText) + ")";
  faces_.button(*command.button).setTip(tip);
}

void Commands::press(const Command& command) {
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  if (faces_.lets(*command.button)) pressUnasked(command);
}

void Commands::pressUnasked(const Command& command) {
  showRow(command);
  faces_.act([&] { command.button->userPress(); });
}

void Commands::pressUnasked(const Button& button) {
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  pressUnasked(*entries_.at(&button).command);
}

void Commands::follow() {
  for (const auto& [button, entry] : entries_) {
    entry.action->setEnabled(entry.command->isEnabled());
    entry.action->setVisible(entry.command->isVisible());
  }
}

}  // namespace awizo::desktop
