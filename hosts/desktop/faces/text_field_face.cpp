#include "hosts/desktop/faces/text_field_face.h"

#include "hosts/desktop/faces/key_codes.h"

namespace awizo::desktop {

TextFieldFace::TextFieldFace(FormFace& form, TextField& field, QWidget* parent)
    : Face(form, field, new QLineEdit(parent)),
      field_(field),
      edit_(static_cast<QLineEdit*>(widget())) {
  edit_->setFocusPolicy(Qt::TabFocus);
  if (field_.alignment() == Alignment::right) edit_->setAlignment(Qt::AlignRight);
  if (field_.alignment() == Alignment::centre) edit_->setAlignment(Qt::AlignHCenter);
  edit_->setAccessibleName(fromText(field_.caption()));
  connect(edit_, &QLineEdit::textEdited, this, [this](const QString& text) {
    typing_ = true;
    act([&] { field_.userType(toText(text)); });
    typing_ = false;
  });
}

void TextFieldFace::showContent() {
  const QString text = fromText(field_.text());
  // The limit counts characters, and code may set any text that keeps it.
  if (field_.limit() > 0) edit_->setMaxLength(field_.limit() + surplusUnits(text));
  if (edit_->text() == text) return;
  edit_->setText(text);
  showCaret();
}

void TextFieldFace::showCaret() {
  edit_->setCursorPosition(unitsBefore(edit_->text(), field_.caret()));
}

void TextFieldFace::showChange(const Change& change) {
  Face::showChange(change);
  if (change.aspect == Aspect::content && !typing_) showCaret();
}

/// Up, Down and the page keys mean nothing to a one-line field; the form around it may scroll.
bool TextFieldFace::pressKey(QKeyEvent& key) {
  const std::int16_t code = keyCodeOf(key);
  const bool ofField = code == keys::left || code == keys::right || code == keys::home ||
                       code == keys::end || code == keys::blank;
  return Face::pressKey(key) || (code != 0 && !ofField);
}

}  // namespace awizo::desktop
