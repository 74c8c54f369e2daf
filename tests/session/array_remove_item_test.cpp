#include "session/array_remove_item.h"

#include "support/error_of.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;

std::string errorOfRemoving(HostValue& value, std::int32_t index) {
  return errorOf([&] { ArrayRemoveItem(value, index); });
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
  EXPECT_EQ(errorOfRemoving(value, 0), "13 Type Mismatch");
}

TEST(ArrayRemoveItem, OutsideTheBoundsIsSubscriptOutOfRange) {
  HostValue value = HostArray{1, {"a", "b"}};
  EXPECT_EQ(errorOfRemoving(value, 0), "9 Subscript out of Range");
  EXPECT_EQ(errorOfRemoving(value, 3), "9 Subscript out of Range");
  EXPECT_EQ(errorOfRemoving(value, -2147483647), "9 Subscript out of Range");
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("a", "b"));
  HostValue empty = HostArray{0, {}};
  EXPECT_EQ(errorOfRemoving(empty, 0), "9 Subscript out of Range");
}

TEST(ArrayRemoveItem, OfAFixedArrayIsRefusedAfterTheMove) {
  HostValue value = HostArray{0, {"a", "b", "c"}, false};
  EXPECT_EQ(errorOfRemoving(value, 0), "10 You must pass a resizable array to this function");
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("b", "c", "c"));
}

TEST(ArrayRemoveItem, TheLastElementCantBeTaken) {
  HostValue value = HostArray{0, {"a"}};
  EXPECT_EQ(errorOfRemoving(value, 0), "9 You must pass a resizable array to this function");
  EXPECT_THAT(std::get<HostArray>(value).elements, ElementsAre("a"));
}

}  // namespace
}  // namespace awizo::test
