#pragma once

#include <exception>
#include <utility>

#include "platform/forms/act.h"
#include "platform/forms/screen.h"

namespace awizo {

/// One act of a user, from the moment at which nothing refuses it any more to its end. Acts within
/// it are its parts, of which nobody learns.
class [[nodiscard]] Acting {
 public:
  Acting(Screen& screen, const Act& act) : screen_(screen) {
    const bool outermost = screen_.runningActs_++ == 0;
    if (!outermost || screen_.actObserver == nullptr) return;
    observer_ = screen_.actObserver;
    observer_->begins(act);
  }
  ~Acting() {
    --screen_.runningActs_;
    if (observer_ != nullptr) observer_->ends(std::uncaught_exceptions() == exceptions_);
  }
  Acting(const Acting&) = delete;
  Acting& operator=(const Acting&) = delete;

  /// For an act of which only its first steps show that it can't be done.
  void refuse() {
    if (ActObserver* observer = std::exchange(observer_, nullptr)) observer->refused();
  }

 private:
  Screen& screen_;
  const int exceptions_ = std::uncaught_exceptions();
  ActObserver* observer_ = nullptr;
};

}  // namespace awizo
