#pragma once

#include "platform/clock.h"

namespace awizo {

/// The machine's clock, in its time zone.
class SystemClock final : public Clock {
 public:
  Moment now() const override;
};

/// A clock that stands still.
class FixedClock final : public Clock {
 public:
  explicit FixedClock(Moment moment) : moment_(moment) {}
  Moment now() const override { return moment_; }

 private:
  Moment moment_;
};

}  // namespace awizo
