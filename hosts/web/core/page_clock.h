#pragma once

#include "platform/clock.h"

namespace awizo::web {

/// The browser's clock, in its time zone.
class PageClock final : public Clock {
 public:
  Moment now() const override;
};

}  // namespace awizo::web
