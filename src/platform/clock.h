#pragma once

#include "platform/date.h"

namespace awizo {

/// Reads the local date and time.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Moment now() const = 0;

  Date today() const { return now().date; }
};

}  // namespace awizo
