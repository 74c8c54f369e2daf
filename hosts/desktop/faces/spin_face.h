#pragma once

#include "hosts/desktop/faces/face.h"
#include "platform/forms/spin_buttons.h"

namespace awizo::desktop {

/// The two arrows that move a field's number. They take no focus.
class SpinFace : public Face {
 public:
  SpinFace(FormFace& form, SpinButtons& spin, QWidget* parent);

 protected:
  void showContent() override {}

 private:
  SpinButtons& spin_;
};

}  // namespace awizo::desktop
