#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/settings.h"

namespace awizo {

/// The sizes that the user has given to a window and its parts, kept in the settings. A part is
/// told by a name; what its numbers measure is the host's.
class KeptSizes {
 public:
  explicit KeptSizes(SettingsStore& settings) : settings_(settings) {}

  /// As many numbers as the part has. Nothing where none were kept, or where they don't fit: other
  /// parts than today's, a size below 0 or beyond any screen, or none above 0.
  std::vector<int> of(std::string_view part, std::size_t count) const;
  /// The same for a part that has as many as were kept.
  std::vector<int> of(std::string_view part) const;
  /// Settings that can't be written keep what they had.
  void keep(std::string_view part, const std::vector<int>& sizes);

 private:
  SettingsStore& settings_;
};

}  // namespace awizo
