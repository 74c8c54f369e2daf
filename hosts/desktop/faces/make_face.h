#pragma once

#include "hosts/desktop/faces/face.h"

namespace awizo::desktop {

/// The face of a control, by its kind. It belongs to its widget, a child of `parent`.
Face* makeFace(FormFace& form, Control& control, QWidget* parent);

}  // namespace awizo::desktop
