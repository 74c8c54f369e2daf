#include "adapters/posix/clocks.h"

#include <ctime>

namespace awizo {

Moment SystemClock::now() const {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  constexpr int yearOfZero = 1900;
  return {makeDate(local.tm_year + yearOfZero, static_cast<unsigned>(local.tm_mon + 1),
                   static_cast<unsigned>(local.tm_mday)),
          {local.tm_hour, local.tm_min, local.tm_sec}};
}

}  // namespace awizo
