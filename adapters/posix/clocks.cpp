#include "adapters/posix/clocks.h"

#include <chrono>
#include <ctime>

namespace awizo {

Moment SystemClock::now() const {
  // Not std::time(), which may lag this clock by a tick.
  const auto moment = std::chrono::system_clock::now();
  const std::time_t seconds =
      std::chrono::system_clock::to_time_t(std::chrono::floor<std::chrono::seconds>(moment));
  std::tm local{};
  localtime_r(&seconds, &local);
  constexpr int yearOfZero = 1900;
  return {makeDate(local.tm_year + yearOfZero, static_cast<unsigned>(local.tm_mon + 1),
                   static_cast<unsigned>(local.tm_mday)),
          {local.tm_hour, local.tm_min, local.tm_sec}};
}

}  // namespace awizo
