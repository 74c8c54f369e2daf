#include "hosts/desktop/window/finder.h"

#include <QKeyEvent>

#include "desk/scanned_fields.h"
#include "hosts/desktop/faces/key_codes.h"
#include "hosts/desktop/faces/table_face.h"
#include "platform/forms/keys.h"

namespace awizo::desktop {

Finder::Finder(const Editor& editor, FormFace& faces)
    : QObject(&faces.window()), faces_(faces), finder_(editor), strip_(new LineStrip(editor)) {
  finder_.say = [this](std::string_view words) { strip_->say(fromText(words)); };
  for (const Table* table : scannedTables(editor.form)) {
    listen(*faces.table(*table).view());
  }
  for (const Button* button : scannedButtons(editor.form)) listen(*faces.widget(*button));
}

void Finder::find() {
  faces_.act([this] { finder_.find(); });
}

void Finder::findAgain() {
  faces_.act([this] { finder_.findAgain(); });
}

void Finder::showFaults() {
  // What is being typed counts.
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  faces_.act([this] { finder_.showFaults(); });
}

bool Finder::takeKey(const QKeyEvent& key) {
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  const bool isDigit = key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9;
  const auto code = isDigit ? static_cast<std::int16_t>(key.key()) : keyCodeOf(key);
  bool taken = true;
  faces_.act([&] { taken = finder_.takeKey(code); });
  return taken;
}

bool Finder::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride: {
      // Among the packages Enter is a command's.
      const bool isEnter = keyCodeOf(static_cast<QKeyEvent&>(*event)) == keys::enter;
      if (isEnter && finder_.takesEnter()) event->accept();
      return false;
    }
    case QEvent::KeyPress:
      return takeKey(static_cast<QKeyEvent&>(*event));
    case QEvent::FocusOut:
      finder_.forgetCode();
      return false;
    default:
      return false;
  }
}

}  // namespace awizo::desktop
