#pragma once

#include <QGroupBox>

namespace awizo::desktop {

/// A box with a heading and a plain line around it. The style's own frame is a picture, laid over
/// the whole of the box in tiles.
class GroupBox : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace awizo::desktop
