#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace awizo {

// The control's answer to a host that asks whether it may be scripted and initialised without a
// warning: it always may. Options: 1 safe for untrusted callers, 2 safe for untrusted data.

/// An interface identifier as it lies in memory: its first three fields in little-endian order.
using InterfaceId = std::array<std::uint8_t, 16>;

/// "{00020400-0000-0000-C000-000000000046}", hexadecimal digits in upper case.
std::string interfaceIdText(const InterfaceId& iid);

/// `iid` in its text form, upper or lower case; the empty text is no interface. `supported`
/// becomes 3 whatever the interface, `enabled` what is on for it: unchanged for no interface,
/// error -2147467262 (no such interface) for one that isn't known.
void IObjectSafety_GetInterfaceSafetyOptions(std::string_view iid, std::int32_t& supported,
                                             std::int32_t& enabled);

/// Accepts the options that the control has anyway. Anything else is error -2147467259 (general
/// failure), an interface that isn't known error -2147467262; no interface does nothing.
void IObjectSafety_SetInterfaceSafetyOptions(std::string_view iid, std::int32_t mask,
                                             std::int32_t options);

}  // namespace awizo
