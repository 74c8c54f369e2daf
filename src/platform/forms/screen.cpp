#include "platform/forms/screen.h"

#include <algorithm>
#include <utility>

#include "platform/at_exit.h"
#include "platform/forms/form.h"
#include "platform/forms/report_errors.h"

namespace awizo {

template <class Wait>
auto Screen::letUserAct(Wait&& wait) {
  const int running = std::exchange(runningActs_, 0);
  const AtExit resume([&] { runningActs_ = running; });
  return wait();
}

Answer Screen::messageBox(MessageBox box) {
  if (box.title.empty()) box.title = programTitle;
  boxes_.push_back(&box);
  const AtExit close([this] { boxes_.pop_back(); });
  return letUserAct([&] { return face_.ask(box); });
}

void Screen::showCritical(std::string_view text, std::string_view title) {
  messageBox({std::string(text), std::string(title), BoxIcon::critical, BoxButtons::ok});
}

void Screen::showError(const RunTimeError& error, std::string_view title) {
  messageBox(
      {error.description(), std::string(title), BoxIcon::critical, BoxButtons::ok, error.number()});
}

void Screen::showExclamation(std::string_view text, std::string_view title) {
  messageBox({std::string(text), std::string(title), BoxIcon::exclamation, BoxButtons::ok});
}

void Screen::showMain(Form& form) {
  forms_.insert(forms_.begin(), &form);
  face_.formOpened(form);
  form.activate();
}

void Screen::runModal(Form& form) {
  forms_.push_back(&form);
  const AtExit close([this, &form] { forget(form); });
  face_.formOpened(form);
  form.activate();
  if (form.shown()) letUserAct([&] { face_.runModal(form); });
}

void Screen::letEventsRun() {
  letUserAct([&] { face_.letEventsRun(); });
}

void Screen::forget(const Form& form) { std::erase(forms_, &form); }

void Screen::runEvent(const std::function<void()>& procedure) {
  if (runningEvents_ >= mostNestedEvents) throw errors::outOfStackSpace();
  ++runningEvents_;
  const AtExit end([this] { --runningEvents_; });
  reportErrors(*this, "VIRD", procedure);
}

void Screen::during(std::string_view what, const std::function<void()>& work) {
  face_.workBegins(what);
  const AtExit end([this] { face_.workEnds(); });
  work();
}

Cursor Screen::setCursor(Cursor cursor) {
  const Cursor earlier = std::exchange(cursor_, cursor);
  if (earlier != cursor) face_.cursorChanged(cursor);
  return earlier;
}

}  // namespace awizo
