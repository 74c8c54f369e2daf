#include "hosts/desktop/layouts/command_actions.h"

#include <utility>

#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/faces/icons.h"
#include "hosts/desktop/faces/table_face.h"
#include "platform/forms/keys.h"

namespace awizo::desktop {
namespace {

Qt::Key keyOf(std::int16_t code) {
  constexpr std::int16_t lastFunctionKey = keys::f1 + 23;
  switch (code) {
    case keys::insert:
      return Qt::Key_Insert;
    case keys::remove:
      return Qt::Key_Delete;
    case keys::enter:
      return Qt::Key_Return;
    default:
      break;
  }
  if (code >= keys::f1 && code <= lastFunctionKey) {
    return static_cast<Qt::Key>(Qt::Key_F1 + code - keys::f1);
  }
  // Letters and digits have the same numbers.
  return static_cast<Qt::Key>(code);
}

}  // namespace

QKeySequence keysOf(const CommandKey& key) {
  Qt::KeyboardModifiers held;
  if (key.control) held |= Qt::ControlModifier;
  if (key.shift) held |= Qt::ShiftModifier;
  return {held | keyOf(key.code)};
}

CommandActions::CommandActions(std::vector<Command> commands, FormFace& faces, QWidget& window)
    : QObject(&window), faces_(faces), commands_(std::move(commands)) {
  for (const Command& command : commands_) add(command, window);
}

void CommandActions::add(const Command& command, QWidget& window) {
  auto* action = new QAction(fromText(command.words), this);
  entries_[command.button] = {&command, action};
  connect(action, &QAction::triggered, this, [this, &command] { press(command); });
  ButtonFace& button = faces_.button(*command.button);
  button.beforePress = [this, &command] { showRow(command); };
  if (!command.icon.empty()) {
    const QString icon = fromText(command.icon);
    action->setIcon(iconNamed(icon));
    button.setIcon(icon);
  }
  if (command.onDoubleClick) {
    tableOf(command).afterDoubleClick = [this, &command] { press(command); };
  }
  if (!command.keys.empty()) giveKeys(command, *action, window);
}

TableFace& CommandActions::tableOf(const Command& command) const {
  return faces_.table(static_cast<const Table&>(*command.place));
}

void CommandActions::showRow(const Command& command) {
  if (command.onCurrentRow) tableOf(command).bringRowIntoView();
}

void CommandActions::giveKeys(const Command& command, QAction& action, QWidget& window) {
  QList<QKeySequence> all;
  for (const CommandKey& key : command.keys) {
    all << keysOf(key);
    // The key of the number pad is as good.
    if (key.code == keys::enter) all << QKeySequence(Qt::Key_Enter);
  }
  action.setShortcuts(all);
  action.setShortcutContext(command.place == nullptr ? Qt::WidgetWithChildrenShortcut
                                                     : Qt::WidgetShortcut);
  (command.place == nullptr ? window : *faces_.widget(*command.place)).addAction(&action);
  const QString name = all.front().toString(QKeySequence::NativeText);
  faces_.button(*command.button).setTip(fromText(command.tip(toText(name))));
}

void CommandActions::press(const Command& command) {
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  if (command.isEnabled() && faces_.lets(*command.button)) pressUnasked(command);
}

void CommandActions::pressUnasked(const Command& command) {
  showRow(command);
  faces_.act([&] { command.button->userPress(); });
}

void CommandActions::pressUnasked(const Button& button) {
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  pressUnasked(*entries_.at(&button).command);
}

void CommandActions::follow() {
  for (const auto& [button, entry] : entries_) {
    entry.action->setEnabled(entry.command->isEnabled());
    entry.action->setVisible(entry.command->isVisible());
  }
}

}  // namespace awizo::desktop
