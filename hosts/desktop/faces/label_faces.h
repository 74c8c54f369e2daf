#pragma once

#include <QGroupBox>
#include <QLabel>

#include "hosts/desktop/faces/face.h"
#include "platform/forms/label.h"

namespace awizo::desktop {

/// A label: its caption, plain text.
class LabelFace : public Face {
 public:
  LabelFace(FormFace& form, Label& label, QWidget* parent);

 protected:
  void showContent() override;

 private:
  Label& label_;
  QLabel* text_;
};

/// A frame with its heading.
class FrameFace : public Face {
 public:
  FrameFace(FormFace& form, Frame& frame, QWidget* parent);

 protected:
  void showContent() override;

 private:
  Frame& frame_;
  QGroupBox* box_;
};

}  // namespace awizo::desktop
