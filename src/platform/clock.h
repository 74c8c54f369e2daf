#pragma once

#include "platform/date.h"

namespace awizo {

/// Reads the local date and time.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Moment now() const = 0;

  /// The same for a stamp that nothing but a log's line is made of.
  virtual Moment stamp() const { return now(); }

  Date today() const { return now().date; }
};

}  // namespace awizo
