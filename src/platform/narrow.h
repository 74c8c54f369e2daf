#pragma once

#include <cstdint>
#include <limits>

#include "platform/run_time_error.h"

namespace awizo {

/// Brings a computed count to 16 bits; a value outside raises error 6 (Overflow).
inline std::int16_t narrow16(std::int64_t value) {
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max()) {
    throw errors::overflow();
  }
  return static_cast<std::int16_t>(value);
}

/// The same for 32 bits.
inline std::int32_t narrow32(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() ||
      value > std::numeric_limits<std::int32_t>::max()) {
    throw errors::overflow();
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace awizo
