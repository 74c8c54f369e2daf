#include "hosts/desktop/window/scanner_fields.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>

#include "desk/scanned_fields.h"
#include "hosts/desktop/layouts/form_dialog.h"

namespace awizo::desktop {
namespace {

void prepareField(const ScannedField& field, FormFace& faces) {
  Face& face = faces.face(*field.control);
  auto* edit = qobject_cast<QLineEdit*>(face.focusWidget());
  if (auto* list = qobject_cast<QComboBox*>(face.focusWidget())) edit = list->lineEdit();
  if (edit == nullptr) return;
  new ScannerFilter(*face.focusWidget(), *edit, field.number,
                    [&faces, &face, type = field.type](const std::string& text) {
                      faces.act([&] { type(text); });
                      face.showAll();
                    });
}

}  // namespace

ScannerFilter::ScannerFilter(QWidget& keys, QLineEdit& edit,
                             std::function<std::string(const std::string&)> number,
                             std::function<void(const std::string&)> type)
    : QObject(&keys), edit_(edit), number_(std::move(number)), type_(std::move(type)) {
  keys.installEventFilter(this);
  connect(&edit, &QLineEdit::textEdited, this, &ScannerFilter::takeEdited);
}

void ScannerFilter::takeEdited(const QString& text) {
  // Where no more fits, the end of what was pasted may have been lost: it isn't made to look whole.
  if (text.size() >= edit_.maxLength()) return;
  const std::string typed = toText(text);
  if (const std::string wanted = number_(typed); wanted != typed) type_(wanted);
}

void ScannerFilter::giveBack() {
  if (const std::string held = marks_.giveBack(); !held.empty()) type_(held);
}

bool ScannerFilter::isBegun() const {
  return edit_.text().isEmpty() || edit_.selectedText() == edit_.text();
}

bool ScannerFilter::isKeptOut(QKeyEvent& key) {
  const QString text = key.text();
  // Enter, Tab and the like have a text too, and aren't typed into a field. The separator comes
  // with Ctrl held.
  constexpr char separator = '\x1d';
  const bool isCommand =
      key.key() >= Qt::Key_Escape ||
      (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const bool isTyped = text.size() == 1 && (!isCommand || text[0] == separator);
  if (!isTyped) {
    const bool isModifier = key.key() >= Qt::Key_Shift && key.key() <= Qt::Key_AltGr;
    if (!isModifier) giveBack();
    if (!key.matches(QKeySequence::Paste) || !isBegun()) return false;
    // The whole of it, before the field's length cuts off its end.
    const std::string pasted = toText(QApplication::clipboard()->text().trimmed());
    const std::string wanted = number_(pasted);
    if (wanted == pasted) return false;
    type_(wanted);
    return true;
  }
  if (text[0].unicode() > 0x7f) {
    giveBack();
    return false;
  }
  const char typed = text[0].toLatin1();
  const std::string given = marks_.given(typed, isBegun());
  if (given == std::string(1, typed)) return false;
  if (!given.empty()) type_(given);
  return true;
}

bool ScannerFilter::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::FocusOut || event->type() == QEvent::MouseButtonPress) giveBack();
  return event->type() == QEvent::KeyPress && isKeptOut(static_cast<QKeyEvent&>(*event));
}

ScannerFields::ScannerFields(AwizoWysylki& control, HostScreenFace& face)
    : fields_(scannedFields(control)) {
  // Others help in other dialogs.
  face.onModal = [this, &face, before = face.onModal](Form& form) {
    if (before) before(form);
    if (prepared_.insert(&form).second) prepare(form, face);
  };
}

void ScannerFields::prepare(Form& form, HostScreenFace& face) const {
  for (const ScannedField& field : fields_) {
    if (&field.control->form() == &form) prepareField(field, face.dialog(form).faces());
  }
}

}  // namespace awizo::desktop
