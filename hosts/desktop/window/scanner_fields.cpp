#include "hosts/desktop/window/scanner_fields.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>

#include "desk/line_search.h"
#include "hosts/desktop/layouts/form_dialog.h"

namespace awizo::desktop {
namespace {

/// The number in a scanned text; a text that holds none as it is.
std::string packageNumber(const std::string& text) {
  const std::string plain = withoutScanMarks(text);
  const std::string_view number = packageNumberIn(plain);
  return number.empty() ? plain : std::string(number);
}

/// Prepares a text field, or a list that can be typed in.
template <class Field>
void prepareField(Field& field, FormFace& faces, std::string (*number)(const std::string&)) {
  Face& face = faces.face(field);
  auto* edit = qobject_cast<QLineEdit*>(face.focusWidget());
  if (auto* list = qobject_cast<QComboBox*>(face.focusWidget())) edit = list->lineEdit();
  if (edit == nullptr) return;
  new ScannedField(*face.focusWidget(), *edit, number, [&](const std::string& text) {
    faces.act([&] { field.userType(text); });
    face.showAll();
  });
}

}  // namespace

ScannedField::ScannedField(QWidget& keys, QLineEdit& edit,
                           std::function<std::string(const std::string&)> number,
                           std::function<void(const std::string&)> type)
    : QObject(&keys), edit_(edit), number_(std::move(number)), type_(std::move(type)) {
  keys.installEventFilter(this);
  connect(&edit, &QLineEdit::textEdited, this, &ScannedField::takeEdited);
}

void ScannedField::takeEdited(const QString& text) {
  // Where no more fits, the end of what was pasted may have been lost: it isn't made to look whole.
  if (text.size() >= edit_.maxLength()) return;
  const std::string typed = toText(text);
  if (const std::string wanted = number_(typed); wanted != typed) type_(wanted);
}

void ScannedField::giveBack() {
  if (const std::string held = marks_.giveBack(); !held.empty()) type_(held);
}

bool ScannedField::isBegun() const {
  return edit_.text().isEmpty() || edit_.selectedText() == edit_.text();
}

bool ScannedField::isKeptOut(QKeyEvent& key) {
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

bool ScannedField::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::FocusOut || event->type() == QEvent::MouseButtonPress) giveBack();
  return event->type() == QEvent::KeyPress && isKeptOut(static_cast<QKeyEvent&>(*event));
}

ScannerFields::ScannerFields(AwizoWysylki& control, HostScreenFace& face) : control_(control) {
  // Others help in other dialogs.
  face.onModal = [this, &face, before = face.onModal](Form& form) {
    if (before) before(form);
    const bool isOurs = &form == &control_.dlgSzczegoly || &form == &control_.dlgDodaj;
    if (isOurs && prepared_.insert(&form).second) prepare(form, face.dialog(form));
  };
}

void ScannerFields::prepare(Form& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  if (&form == &control_.dlgSzczegoly) {
    prepareField(control_.dlgSzczegoly.txtSerialNumberN, faces, packageNumber);
  } else {
    prepareField(control_.dlgDodaj.txtlEANProdWart, faces,
                 [](const std::string& text) { return withoutScanMarks(text); });
    prepareField(control_.dlgDodaj.cboxEANProd, faces,
                 [](const std::string& text) { return withoutScanMarks(text); });
  }
}

}  // namespace awizo::desktop
