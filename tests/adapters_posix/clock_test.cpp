#include <cstdlib>
#include <ctime>

#include "adapters/posix/clocks.h"

namespace awizo {
namespace {

using std::chrono::floor;
using std::chrono::seconds;
using std::chrono::system_clock;

seconds sinceEpoch(const Moment& moment) {
  return std::chrono::sys_days(moment.date).time_since_epoch() +
         std::chrono::hours(moment.time.hour) + std::chrono::minutes(moment.time.minute) +
         seconds(moment.time.second);
}

seconds nowSinceEpoch() { return floor<seconds>(system_clock::now()).time_since_epoch(); }

TEST(SystemClockTest, TellsTheTimeOfTheZone) {
  for (const auto& [zone, hoursAhead] : {std::pair("UTC0", 0), {"MSK-3", 3}, {"EST5", -5}}) {
    setenv("TZ", zone, 1);
    tzset();
    const seconds before = nowSinceEpoch();
    const seconds told = sinceEpoch(SystemClock().now()) - std::chrono::hours(hoursAhead);
    EXPECT_LE(before, told) << zone;
    EXPECT_LE(told, nowSinceEpoch()) << zone;
  }
  unsetenv("TZ");
  tzset();
}

}  // namespace
}  // namespace awizo
