#pragma once

#include <string>

#include "platform/forms/screen_face.h"

namespace awizo {

/// Words for the user beside a box that tells an error of the service or of a file in the machine's
/// own terms: what happened, whether a document may have arrived, what to do. Empty for any other
/// box. The box's own text and title stay.
std::string adviceOn(const MessageBox& box);

}  // namespace awizo
