#include "platform/forms/screen.h"

#include <algorithm>
#include <utility>

#include "platform/forms/form.h"
#include "platform/forms/report_errors.h"

namespace awizo {
namespace {

/// Undoes on leaving a block, by an error too, what the block began with.
template <class Undo>
class AtExit {
 public:
  explicit AtExit(Undo undo) : undo_(std::move(undo)) {}
  ~AtExit() { undo_(); }
  AtExit(const AtExit&) = delete;
  AtExit& operator=(const AtExit&) = delete;

 private:
  Undo undo_;
};

}  // namespace

Answer Screen::messageBox(MessageBox box) {
  if (box.title.empty()) box.title = programTitle;
  boxes_.push_back(&box);
  const AtExit close([this] { boxes_.pop_back(); });
  return face_.ask(box);
}

void Screen::showCritical(std::string_view text, std::string_view title) {
  messageBox({std::string(text), std::string(title), BoxIcon::critical, BoxButtons::ok});
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
  if (form.shown()) face_.runModal(form);
}

void Screen::forget(const Form& form) { std::erase(forms_, &form); }

void Screen::runEvent(const std::function<void()>& procedure) {
  if (runningEvents_ >= mostNestedEvents) throw errors::outOfStackSpace();
  ++runningEvents_;
  const AtExit end([this] { --runningEvents_; });
  reportErrors(*this, "VIRD", procedure);
}

Cursor Screen::setCursor(Cursor cursor) {
  const Cursor earlier = std::exchange(cursor_, cursor);
  if (earlier != cursor) face_.cursorChanged(cursor);
  return earlier;
}

}  // namespace awizo
