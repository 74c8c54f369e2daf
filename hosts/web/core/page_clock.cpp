#include "hosts/web/core/page_clock.h"

#include <chrono>
#include <cstdint>

#include "hosts/web/core/border.h"

namespace awizo::web {

Moment PageClock::now() const {
  using namespace std::chrono;  // NOLINT(google-build-using-namespace)
  const sys_seconds now{seconds(static_cast<std::int64_t>(localSeconds()))};
  const auto day = floor<days>(now);
  const hh_mm_ss time(now - day);
  return {Date(day),
          {static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
           static_cast<int>(time.seconds().count())}};
}

}  // namespace awizo::web
