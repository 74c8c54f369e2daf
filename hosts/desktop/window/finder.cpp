#include "hosts/desktop/window/finder.h"

#include <QKeyEvent>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/key_codes.h"
#include "hosts/desktop/faces/table_face.h"

namespace awizo::desktop {

Finder::Finder(const Editor& editor, FormFace& faces, ScreenFace& screenFace)
    : QObject(&faces.window()),
      editor_(editor),
      faces_(faces),
      screen_(screenFace),
      findDialog_(screen_, editor),
      faultList_(screen_),
      strip_(new LineStrip(editor)) {
  faces.table(editor.form.grdPozycje).view()->installEventFilter(this);
}

void Finder::goToRow(std::optional<int> row, const QString& nothing) {
  if (!row) return strip_->say(nothing);
  faces_.act([&] { editor_.form.grdPozycje.userRow(*row); });
}

void Finder::find() {
  if (!editor_.form.takesInput()) return;
  if (const std::optional<int> row = findDialog_.ask()) goToRow(row, {});
}

void Finder::findAgain() {
  if (findDialog_.txtWhat.text().empty()) return find();
  if (editor_.form.takesInput()) goToRow(findDialog_.again(), fromText(words::noSuchLine));
}

void Finder::showFaults() {
  if (!editor_.form.takesInput()) return;
  // What is being typed counts.
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  const std::optional<DocumentFault> chosen = faultList_.choose(faultsOf(editor_));
  if (chosen) faces_.act([&] { goTo(*chosen); });
}

/// Whether the key is one of a scanned code.
bool Finder::takeKey(const QKeyEvent& key) {
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  if (key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9) {
    code_.add(static_cast<char>('0' + key.key() - Qt::Key_0));
    strip_->say(fromText(words::codeSoFar) + fromText(code_.digits()));
    return true;
  }
  const bool ends = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  const std::string code = ends ? code_.end() : "";
  if (code.empty()) {
    if (!code_.digits().empty()) strip_->showLine();
    code_.forget();
    return false;
  }
  strip_->showLine();
  goToRow(findScanned(editor_, code), fromText(words::noSuchCode) + fromText(code));
  return true;
}

bool Finder::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return takeKey(static_cast<QKeyEvent&>(*event));
    case QEvent::FocusOut:
      if (!code_.digits().empty()) strip_->showLine();
      code_.forget();
      return false;
    default:
      return false;
  }
}

}  // namespace awizo::desktop
