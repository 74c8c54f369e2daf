// A client that is sent only changes holds, after whatever a user does, all that it could ask for.

#include "support/mirror/mirror.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

#include "hosts/protocol/changes/change_feed.h"
#include "hosts/protocol/control_access.h"
#include "random_user/user.h"

namespace awizo::test {
namespace {

constexpr protocol::RowRange everyRow{0, std::numeric_limits<int>::max()};

/// A random user's control with a client mirroring it, compared after all that the user does.
class MirroredUser {
 public:
  MirroredUser(Dice& dice, const Beginning& beginning) : user_(dice, beginning) {
    for (Form* form : access_.forms().forms()) {
      feed_.subscribe(*form);
      for (const Control* control : form->controls()) feed_.show(*control, everyRow);
    }
    user_.onAction = [this] { compare(); };
  }

  void act() { user_.act(); }
  int comparisons() const { return comparisons_; }
  std::string history() const { return user_.history(); }

 private:
  Mirror::State answerTo(const std::string& name) {
    return Mirror::State(access_.act({{"get", name}})["value"]);
  }

  void compare() {
    feed_.flush();
    ++comparisons_;
    for (const Form* form : access_.forms().forms()) {
      Mirror::State answer = answerTo(form->name());
      const Mirror::State held = mirror_.form(form->name());
      for (const auto& [member, value] : held.items()) {
        ASSERT_EQ(answer.at(member), value) << form->name() << "." << member << history();
      }
      for (const Control* control : form->controls()) {
        // A folder that appears while the dialog is hidden is sent when the dialog is shown.
        if (control->kind() == ControlKind::folderList && !form->shown()) continue;
        const std::string name = access_.forms().nameOf(control);
        ASSERT_EQ(mirror_.control(name), answerTo(name)) << name << "\n" << history();
      }
    }
  }

  RandomUser user_;
  const Options options_;
  const OptionsBag bag_{options_};
  protocol::ControlAccess access_{user_.control(), bag_};
  Mirror mirror_;
  protocol::ChangeFeed feed_{access_.forms(),
                             [this](const protocol::Json& changes) { mirror_.take(changes); }};
  int comparisons_ = 0;
};

TEST(MirrorTest, HoldsWhatAGetAnswersAfterAnyActs) {
  unsetenv("AWIZO_SEEN_BOXES");
  Dice dice(20261122);
  int comparisons = 0;
  for (int session = 0; session < 3 && !testing::Test::HasFailure(); ++session) {
    MirroredUser user(dice, {"ru_RU", session % 2 == 0, false, false});
    for (int act = 0; act < 25 && !testing::Test::HasFailure(); ++act) user.act();
    comparisons += user.comparisons();
  }
  EXPECT_GT(comparisons, 150);
}

}  // namespace
}  // namespace awizo::test
