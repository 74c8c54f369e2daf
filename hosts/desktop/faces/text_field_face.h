#pragma once

#include <QLineEdit>

#include "hosts/desktop/faces/face.h"
#include "platform/forms/text_field.h"

namespace awizo::desktop {

/// A one-line text field.
class TextFieldFace : public Face {
 public:
  TextFieldFace(FormFace& form, TextField& field, QWidget* parent);

 protected:
  void showContent() override;
  void showChange(const Change& change) override;
  bool pressKey(QKeyEvent& key) override;

 private:
  void showCaret();

  TextField& field_;
  QLineEdit* edit_;
  bool typing_ = false;  ///< the field itself holds the caret's right place
};

}  // namespace awizo::desktop
