#include "assistants/assisted_face.h"

#include "platform/forms/button.h"
#include "platform/forms/form.h"

namespace awizo {

Answer AssistedFace::ask(const MessageBox& box) {
  if (!isActing()) return real_.ask(box);
  said_.push_back(box.text);
  return box.buttons == BoxButtons::ok ? Answer::ok : Answer::no;
}

void AssistedFace::formOpened(Form& form) {
  if (!isActing()) real_.formOpened(form);
}

void AssistedFace::runModal(Form& form) {
  if (!isActing()) return real_.runModal(form);
  try {
    act_(form);
  } catch (const Refused& refused) {
    said_.emplace_back(refused.what());
  }
  if (form.shown() && form.closeButton != nullptr) form.closeButton->userPress();
  if (form.shown()) form.hide();
}

void AssistedFace::workBegins(std::string_view what) {
  if (!isActing()) real_.workBegins(what);
}

void AssistedFace::workEnds() {
  if (!isActing()) real_.workEnds();
}

void AssistedFace::letEventsRun() {
  if (!isActing()) real_.letEventsRun();
}

}  // namespace awizo
