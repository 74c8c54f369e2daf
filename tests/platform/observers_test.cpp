#include "platform/observers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ObserversTest : public testing::Test {
 protected:
  Observers<const std::string&> observers;
  std::vector<std::string> heard;

  int addNamed(std::string name) {
    return observers.add([this, name = std::move(name)](const std::string& news) {
      heard.push_back(name + " " + news);
    });
  }
  std::vector<std::string> tell(const std::string& news) {
    heard.clear();
    observers.tell(news);
    return heard;
  }
};

TEST_F(ObserversTest, HearInTheOrderOfTheirAdding) {
  addNamed("first");
  const int second = addNamed("second");
  addNamed("third");
  EXPECT_THAT(tell("a"), ElementsAre("first a", "second a", "third a"));
  observers.remove(second);
  addNamed("second");
  EXPECT_THAT(tell("b"), ElementsAre("first b", "third b", "second b"));
}

TEST_F(ObserversTest, OneThatRemovesItselfKeepsWhatItHoldsUntilItReturns) {
  addNamed("first");
  int once = 0;
  once = observers.add(
      [this, &once, name = std::string("once, with a name of its own")](const std::string& news) {
        observers.remove(once);
        heard.push_back(name + " " + news);
      });
  addNamed("last");
  EXPECT_THAT(tell("a"), ElementsAre("first a", "once, with a name of its own a", "last a"));
  EXPECT_THAT(tell("b"), ElementsAre("first b", "last b"));
}

TEST_F(ObserversTest, OneThatRemovedItselfLetsGoOfWhatItHoldsWhenAllHaveReturned) {
  int once = 0;
  auto held = std::make_shared<int>(0);
  once = observers.add([this, &once, held](const std::string&) { observers.remove(once); });
  const std::weak_ptr<int> watched = held;
  held.reset();
  EXPECT_FALSE(watched.expired());
  tell("a");
  EXPECT_TRUE(watched.expired());
}

TEST_F(ObserversTest, OneThatAnotherRemovesHearsNothingMore) {
  int last = 0;
  observers.add([&](const std::string&) { observers.remove(last); });
  last = addNamed("last");
  EXPECT_THAT(tell("a"), IsEmpty());
}

TEST_F(ObserversTest, OneAddedMeanwhileHearsTheNextTime) {
  bool added = false;
  observers.add([&](const std::string&) {
    if (!std::exchange(added, true)) addNamed("new");
  });
  EXPECT_THAT(tell("a"), IsEmpty());
  EXPECT_THAT(tell("b"), ElementsAre("new b"));
}

TEST_F(ObserversTest, MayBringAboutFurtherNews) {
  int self = 0;
  self = observers.add([&](const std::string& news) {
    heard.push_back("outer " + news);
    if (news == "inner") return observers.remove(self);
    observers.tell("inner");
    heard.push_back("back in " + news);
  });
  addNamed("last");
  EXPECT_THAT(tell("a"),
              ElementsAre("outer a", "outer inner", "last inner", "back in a", "last a"));
  EXPECT_THAT(tell("b"), ElementsAre("last b"));
}

TEST_F(ObserversTest, AnErrorOfOneReachesTheTeller) {
  const int failing = observers.add([](const std::string&) { throw std::runtime_error("no"); });
  addNamed("last");
  EXPECT_THROW(tell("a"), std::runtime_error);
  observers.remove(failing);
  EXPECT_THAT(tell("b"), ElementsAre("last b"));
}

TEST_F(ObserversTest, ANumberThatIsNoObserversRemovesNone) {
  const int first = addNamed("first");
  observers.remove(first + 1);
  EXPECT_THAT(tell("a"), ElementsAre("first a"));
}

}  // namespace
}  // namespace awizo::test
