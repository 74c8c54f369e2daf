#include "session/object_safety.h"

#include "platform/run_time_error.h"

namespace awizo {
namespace {

constexpr std::int32_t safeForCallers = 1;
constexpr std::int32_t safeForData = 2;

struct KnownInterface {
  std::string_view id;
  std::int32_t enabled;
};

constexpr KnownInterface knownInterfaces[] = {
    {"{00020400-0000-0000-C000-000000000046}", safeForCallers},  // IDispatch
    {"{0000010A-0000-0000-C000-000000000046}", safeForData},     // IPersistStorage
    {"{00000109-0000-0000-C000-000000000046}", safeForData},     // IPersistStream
    {"{37D84F60-42CB-11CE-8135-00AA004BB851}", safeForData},     // IPersistPropertyBag
};

RunTimeError noSuchInterface() { return {-2147467262, "No such interface supported"}; }
RunTimeError generalFailure() { return {-2147467259, "Unspecified error"}; }

std::string upperCase(std::string_view iid) {
  std::string text(iid);
  for (char& letter : text) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return text;
}

std::int32_t enabledOptions(std::string_view iid) {
  const std::string text = upperCase(iid);
  for (const KnownInterface& known : knownInterfaces) {
    if (known.id == text) return known.enabled;
  }
  throw noSuchInterface();
}

}  // namespace

std::string interfaceIdText(const InterfaceId& iid) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  constexpr std::size_t order[] = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
  std::string text = "{";
  for (std::size_t i = 0; i < std::size(order); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    const std::uint8_t byte = iid[order[i]];
    text += digits[byte >> 4];
    text += digits[byte & 0x0F];
  }
  return text + '}';
}

void IObjectSafety_GetInterfaceSafetyOptions(std::string_view iid, std::int32_t& supported,
                                             std::int32_t& enabled) {
  supported = safeForCallers | safeForData;
  if (iid.empty()) return;
  enabled = enabledOptions(iid);
}

void IObjectSafety_SetInterfaceSafetyOptions(std::string_view iid, std::int32_t mask,
                                             std::int32_t options) {
  if (iid.empty()) return;
  if ((mask & options) != enabledOptions(iid)) throw generalFailure();
}

}  // namespace awizo
