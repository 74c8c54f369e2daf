#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace awizo {

/// Names of the control's properties, which its container keeps in a bag.
namespace properties {

inline constexpr std::string_view onLine = "OnLine";
inline constexpr std::string_view debugLevel = "DebugLevel";
inline constexpr std::string_view partnerName = "PartnerName";
inline constexpr std::string_view partnerIln = "PartnerILN";
inline constexpr std::string_view partnerUrl = "PartnerURL";
inline constexpr std::array names{onLine, debugLevel, partnerName, partnerIln, partnerUrl};

/// The value of OnLine that means off line; any other text means on line.
inline constexpr std::string_view offLine = "Off";

}  // namespace properties

/// Whether this value of OnLine means off line.
constexpr bool isOffLine(std::string_view onLine) { return onLine == properties::offLine; }

/// What a program is given for the session that it begins.
struct GivenSession {
  std::map<std::string, std::string> properties;  ///< of the property bag, by their names
  std::optional<std::string> pageUrl, cookie;     ///< none: the read raises an error

  /// The property's value, empty where it isn't given.
  std::string property(std::string_view name) const {
    const auto found = properties.find(std::string(name));
    return found == properties.end() ? "" : found->second;
  }
};

}  // namespace awizo
