#pragma once

#include "platform/clock.h"

namespace awizo {

/// The machine's clock, in its time zone.
class SystemClock final : public Clock {
 public:
  Moment now() const override;
};

}  // namespace awizo
