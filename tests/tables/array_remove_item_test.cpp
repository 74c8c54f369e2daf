#include "tables/array_remove_item.h"

#include "platform/run_time_error.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;

std::string errorOf(HostValue& value, std::int32_t index) {
  try {
    ArrayRemoveItem(value, index);
  } catch (const RunTimeError& error) {
    return std::to_string(error.number()) + " " + error.description();
  }
  return "none";
}

TEST(ArrayRemoveItem, MovesTheElementsAboveDown) {
  HostValue value = HostArray{0, {"a", "b", "c", "d"}};
  ArrayRemoveItem(value, 1);
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("a", "c", "d"));
  ArrayRemoveItem(value, 0);
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("c", "d"));
  ArrayRemoveItem(value, 1);
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("c"));
}

TEST(ArrayRemoveItem, CountsFromTheLowerBound) {
  HostValue value = HostArray{5, {"a", "b", "c"}};
  ArrayRemoveItem(value, 7);
  EXPECT_EQ(std::get<HostArray>(value), (HostArray{5, {"a", "b"}}));
}

TEST(ArrayRemoveItem, OfWhatIsNoArrayIsATypeMismatch) {
  HostValue value = "abc";
  EXPECT_EQ(errorOf(value, 0), "13 Type Mismatch");
}

TEST(ArrayRemoveItem, OutsideTheBoundsIsSubscriptOutOfRange) {
  HostValue value = HostArray{1, {"a", "b"}};
  EXPECT_EQ(errorOf(value, 0), "9 Subscript out of Range");
  EXPECT_EQ(errorOf(value, 3), "9 Subscript out of Range");
  EXPECT_EQ(errorOf(value, -2147483647), "9 Subscript out of Range");
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("a", "b"));
  HostValue empty = HostArray{0, {}};
  EXPECT_EQ(errorOf(empty, 0), "9 Subscript out of Range");
}

TEST(ArrayRemoveItem, OfAFixedArrayIsRefusedAfterTheMove) {
  HostValue value = HostArray{0, {"a", "b", "c"}, false};
  EXPECT_EQ(errorOf(value, 0), "10 You must pass a resizable array to this function");
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("b", "c", "c"));
}

TEST(ArrayRemoveItem, TheLastElementCantBeTaken) {
  HostValue value = HostArray{0, {"a"}};
  EXPECT_EQ(errorOf(value, 0), "9 You must pass a resizable array to this function");
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("a"));
}

}  // namespace
}  // namespace awizo::test
