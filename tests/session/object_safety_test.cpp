#include "session/object_safety.h"

#include <gtest/gtest.h>

#include "support/error_of.h"

namespace awizo::test {
namespace {

constexpr std::string_view dispatch = "{00020400-0000-0000-C000-000000000046}";
constexpr std::string_view storage = "{0000010A-0000-0000-C000-000000000046}";
constexpr std::string_view stream = "{00000109-0000-0000-C000-000000000046}";
constexpr std::string_view propertyBag = "{37D84F60-42CB-11CE-8135-00AA004BB851}";
constexpr std::string_view unknown = "{00000000-0000-0000-C000-000000000046}";
constexpr std::int32_t noSuchInterface = static_cast<std::int32_t>(0x80004002U);
constexpr std::int32_t generalFailure = static_cast<std::int32_t>(0x80004005U);

std::int32_t enabledFor(std::string_view iid) {
  std::int32_t supported = 0;
  std::int32_t enabled = 0;
  IObjectSafety_GetInterfaceSafetyOptions(iid, supported, enabled);
  EXPECT_EQ(supported, 3);
  return enabled;
}

std::int32_t errorOfSetting(std::string_view iid, std::int32_t mask, std::int32_t options) {
  return errorNumberOf([&] { IObjectSafety_SetInterfaceSafetyOptions(iid, mask, options); });
}

TEST(ObjectSafety, OffersScriptingForDispatchAndInitialisingForPersistence) {
  EXPECT_EQ(enabledFor(dispatch), 1);
  EXPECT_EQ(enabledFor(storage), 2);
  EXPECT_EQ(enabledFor(stream), 2);
  EXPECT_EQ(enabledFor(propertyBag), 2);
}

TEST(ObjectSafety, TakesIdentifiersInLowerCaseToo) {
  EXPECT_EQ(enabledFor("{37d84f60-42cb-11ce-8135-00aa004bb851}"), 2);
}

TEST(ObjectSafety, LeavesEnabledAloneWithoutAnInterface) {
  std::int32_t supported = 0;
  std::int32_t enabled = 77;
  IObjectSafety_GetInterfaceSafetyOptions("", supported, enabled);
  EXPECT_EQ(supported, 3);
  EXPECT_EQ(enabled, 77);
}

TEST(ObjectSafety, RefusesAnUnknownInterfaceWithSupportedAlreadySet) {
  std::int32_t supported = 0;
  std::int32_t enabled = 77;
  EXPECT_EQ(
      errorNumberOf([&] { IObjectSafety_GetInterfaceSafetyOptions(unknown, supported, enabled); }),
      noSuchInterface);
  EXPECT_EQ(supported, 3);
  EXPECT_EQ(enabled, 77);
}

TEST(ObjectSafety, AcceptsForDispatchWhatCombinesToOne) {
  EXPECT_EQ(errorOfSetting(dispatch, 1, 1), 0);
  EXPECT_EQ(errorOfSetting(dispatch, 3, 1), 0);
  EXPECT_EQ(errorOfSetting(dispatch, 1, 3), 0);
  EXPECT_EQ(errorOfSetting(dispatch, 3, 3), generalFailure);
  EXPECT_EQ(errorOfSetting(dispatch, 2, 2), generalFailure);
  EXPECT_EQ(errorOfSetting(dispatch, 1, 2), generalFailure);
  EXPECT_EQ(errorOfSetting(dispatch, 0, 0), generalFailure);
}

TEST(ObjectSafety, AcceptsForPersistenceWhatCombinesToTwo) {
  for (const std::string_view iid : {storage, stream, propertyBag}) {
    EXPECT_EQ(errorOfSetting(iid, 2, 2), 0);
    EXPECT_EQ(errorOfSetting(iid, 3, 2), 0);
    EXPECT_EQ(errorOfSetting(iid, 1, 1), generalFailure);
    EXPECT_EQ(errorOfSetting(iid, 3, 3), generalFailure);
  }
}

TEST(ObjectSafety, SettingRefusesAnUnknownInterfaceAndIgnoresNone) {
  EXPECT_EQ(errorOfSetting(unknown, 1, 1), noSuchInterface);
  EXPECT_EQ(errorOfSetting("", 3, 3), 0);
}

TEST(ObjectSafety, WritesAnIdentifiersBytesAsUpperCaseText) {
  const InterfaceId bytes{0x60, 0x4F, 0xD8, 0x37, 0xCB, 0x42, 0xCE, 0x11,
                          0x81, 0x35, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51};
  EXPECT_EQ(interfaceIdText(bytes), propertyBag);
  EXPECT_EQ(enabledFor(interfaceIdText(bytes)), 2);
}

}  // namespace
}  // namespace awizo::test
