#include "hosts/protocol/changes/row_watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace awizo::protocol::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(RowWatch, TellsTheFirstHundredWhereTheClientSaysNothing) {
  RowWatch watch;
  EXPECT_THAT(watch.take(32767, 1), SizeIs(100));
  EXPECT_THAT(watch.take(32767, 1), IsEmpty());
}

TEST(RowWatch, TellsFixedRowsAndThoseThatAreShown) {
  RowWatch watch;
  watch.show({10, 3});
  EXPECT_THAT(watch.take(20, 1), ElementsAre(0, 10, 11, 12));
  watch.changed(11);
  watch.changed(15);
  EXPECT_THAT(watch.take(20, 1), ElementsAre(11));
}

TEST(RowWatch, TellsOnScrollingOnlyWhatComesIntoView) {
  RowWatch watch;
  watch.show({10, 3});
  watch.take(20, 1);
  watch.show({12, 3});
  EXPECT_THAT(watch.take(20, 1), ElementsAre(13, 14));
  watch.show({10, 3});
  EXPECT_THAT(watch.take(20, 1), ElementsAre(10, 11)) << "what went out of view is forgotten";
}

TEST(RowWatch, TellsAllThatIsShownWhenRowsMove) {
  RowWatch watch;
  watch.show({1, 2});
  watch.take(5, 1);
  watch.allChanged();
  EXPECT_THAT(watch.take(4, 1), ElementsAre(0, 1, 2));
}

TEST(RowWatch, TellsNoRowThatIsNotThere) {
  RowWatch watch;
  watch.show({3, 10});
  EXPECT_THAT(watch.take(5, 1), ElementsAre(0, 3, 4));
  EXPECT_THAT(watch.take(2, 1), IsEmpty());
  EXPECT_THAT(watch.take(4, 1), ElementsAre(3)) << "a row that has come back is another";
  watch.show({2147483647, 2147483647});
  EXPECT_THAT(watch.take(4, 1), IsEmpty());
}

}  // namespace
}  // namespace awizo::protocol::test
