#include "platform/forms/boxes.h"

#include "platform/forms/screen.h"

namespace awizo {

bool refuse(Screen& screen, std::string_view message, Control* focus) {
  screen.showCritical(message, "VIRD");
  if (focus != nullptr) focus->setFocus();
  return false;
}

bool warn(Screen& screen, std::string_view message, Control* focus) {
  screen.showExclamation(message, "VIRD");
  if (focus != nullptr) focus->setFocus();
  return false;
}

bool isConfirmed(Screen& screen, std::string_view question) {
  return screen.messageBox({std::string(question), "VIRD", BoxIcon::question, BoxButtons::yesNo}) ==
         Answer::yes;
}

}  // namespace awizo
