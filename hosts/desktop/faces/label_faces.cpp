#include "hosts/desktop/faces/label_faces.h"

#include "hosts/desktop/faces/group_box.h"

namespace awizo::desktop {

LabelFace::LabelFace(FormFace& form, Label& label, QWidget* parent)
    : Face(form, label, new QLabel(parent)), label_(label), text_(static_cast<QLabel*>(widget())) {
  text_->setTextFormat(Qt::PlainText);
}

void LabelFace::showContent() {
  const QString caption = fromText(label_.caption());
  if (text_->text() != caption) text_->setText(caption);
}

FrameFace::FrameFace(FormFace& form, Frame& frame, QWidget* parent)
    : Face(form, frame, new GroupBox(parent)),
      frame_(frame),
      box_(static_cast<QGroupBox*>(widget())) {}

/// Spaces at the ends only placed the heading on the frame's line.
void FrameFace::showContent() { box_->setTitle(fromText(frame_.caption()).trimmed()); }

}  // namespace awizo::desktop
