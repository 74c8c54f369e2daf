#include "hosts/desktop/layouts/command_keys.h"

#include <QAction>

#include "hosts/desktop/faces/button_face.h"
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
  const Qt::Key one = keyOf(key.code);
  return key.control ? QKeySequence(Qt::CTRL | one) : QKeySequence(one);
}

void giveKeys(const std::vector<Command>& commands, FormFace& faces) {
  for (const Command& command : commands) {
    QWidget* place = command.place == nullptr ? &faces.window() : faces.widget(*command.place);
    const QKeySequence keys = keysOf(command.keys.front());
    auto* action = new QAction(place);
    action->setShortcut(keys);
    action->setShortcutContext(command.place == nullptr ? Qt::WidgetWithChildrenShortcut
                                                        : Qt::WidgetShortcut);
    place->addAction(action);
    QObject::connect(action, &QAction::triggered, place, [command, &faces] {
      if (Face* face = faces.focusedFace()) face->finishTyping();
      if (command.onCurrentRow) {
        faces.table(static_cast<const Table&>(*command.place)).bringRowIntoView();
      }
      faces.act([&command] { command.button->userPress(); });
    });
    faces.button(*command.button)
        .setTip(fromText(command.plainWords()) + " (" + keys.toString(QKeySequence::NativeText) +
                ")");
  }
}

}  // namespace awizo::desktop
