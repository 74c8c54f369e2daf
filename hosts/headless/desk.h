#pragma once

#include <functional>
#include <map>
#include <string>

#include "hosts/headless/form_directory.h"
#include "hosts/headless/procedures/json.h"
#include "hosts/headless/procedures/procedures.h"
#include "hosts/headless/user_actions.h"
#include "platform/forms/screen.h"

namespace awizo::headless {

/// All that lines act on: reads which kind of line it is and does it.
class Desk {
 public:
  Desk(const Screen& screen, FormDirectory& forms)
      : screen_(screen), forms_(forms), actions_(forms) {}

  /// What the host itself does ("show", "terminate"): by the name of its "do".
  std::map<std::string, std::function<void(const Json& line)>, std::less<>> hostActions;
  /// What "get" answers beside the forms and their controls ("session", "settings").
  std::map<std::string, std::function<Json()>, std::less<>> records;
  Procedures procedures;
  /// After the control's end nothing but a "get" is allowed.
  bool ended = false;

  /// The line's result, as Conversation::act gives it.
  Json act(const Json& line);

 private:
  void perform(const Json& line);
  Json get(const Json& line) const;
  Json call(const Json& line) const;
  Json formState(const Form& form) const;

  const Screen& screen_;
  FormDirectory& forms_;
  UserActions actions_;
};

}  // namespace awizo::headless
