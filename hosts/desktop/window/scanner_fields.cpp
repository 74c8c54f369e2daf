#include "hosts/desktop/window/scanner_fields.h"

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
    : QObject(&keys), edit_(edit) {
  keys.installEventFilter(this);
  connect(&edit, &QLineEdit::textEdited, this,
          [number = std::move(number), type = std::move(type)](const QString& text) {
            const std::string typed = toText(text);
            if (const std::string wanted = number(typed); wanted != typed) type(wanted);
          });
}

bool ScannedField::isKeptOut(const QKeyEvent& key) {
  const QString text = key.text();
  if (text.size() != 1 || text[0].unicode() > 0x7f) return false;
  // Enter, Tab and the like have a text too, and aren't typed into a field. The separator comes
  // with Ctrl held.
  constexpr char separator = '\x1d';
  const bool isCommand =
      key.key() >= Qt::Key_Escape ||
      (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  if (isCommand && text[0] != separator) return false;
  const bool isFirst = edit_.text().isEmpty() || edit_.selectedText() == edit_.text();
  return !marks_.lets(text[0].toLatin1(), isFirst);
}

bool ScannedField::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::FocusOut) marks_.forget();
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
