#pragma once

#include <string_view>

#include "hosts/protocol/form_directory.h"
#include "hosts/protocol/values/json.h"

namespace awizo::protocol {

/// What a user does to controls and forms: the lines with "do" that name a control or form by "on".
/// The models decide what a user can do; this only finds the control and reads the line.
class UserActions {
 public:
  explicit UserActions(const FormDirectory& forms) : forms_(forms) {}

  /// Whether there is an action of this name.
  static bool knows(std::string_view action);
  /// Throws BadLine, or Refused where the user can't do this now.
  void perform(std::string_view action, const Json& line) const;

 private:
  const FormDirectory& forms_;
};

}  // namespace awizo::protocol
