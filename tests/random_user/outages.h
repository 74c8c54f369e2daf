#pragma once

#include <string_view>

#include "random_user/dice.h"
#include "support/control/test_control.h"

namespace awizo::test {

/// What goes wrong around a control, by chance: disks and the service.
class Outages {
 public:
  Outages(Dice& dice, TestControl& desk) : dice_(dice), desk_(desk) {}

  /// Lets something fail from now on, or all work again.
  void change();
  /// Whether the text is one that nothing but a failing disk causes.
  static bool isDiskError(std::string_view text);
  /// Queues a failure for the next request.
  void failRequest();

 private:
  Dice& dice_;
  TestControl& desk_;
};

}  // namespace awizo::test
