#pragma once

#include "platform/clock.h"

namespace awizo {

/// A clock that stands still until it is set.
class FixedClock : public Clock {
 public:
  explicit FixedClock(Moment at) : moment(at) {}
  Moment now() const override { return moment; }

  Moment moment;
};

}  // namespace awizo
