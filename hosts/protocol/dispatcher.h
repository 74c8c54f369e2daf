#pragma once

#include <functional>
#include <map>
#include <string>

#include "hosts/protocol/form_directory.h"
#include "hosts/protocol/procedures/procedures.h"
#include "hosts/protocol/user_actions.h"
#include "hosts/protocol/values/json.h"
#include "platform/forms/screen.h"

namespace awizo::protocol {

/// All that lines act on: reads which kind of line it is and does it.
class Dispatcher {
 public:
  Dispatcher(const Screen& screen, FormDirectory& forms)
      : screen_(screen), forms_(forms), actions_(forms) {}

  /// What the host itself does ("show", "terminate"): by the name of its "do".
  std::map<std::string, std::function<void(const Json& line)>, std::less<>> hostActions;
  /// What a client says of itself, by the name of its "do": no deed, so nobody notes it.
  std::map<std::string, std::function<void(const Json& line)>, std::less<>> clientActions;
  /// What "get" answers besides the forms and their controls ("session", "settings").
  std::map<std::string, std::function<Json()>, std::less<>> records;
  Procedures procedures;
  /// Whether what the host does, a call included, is noted by somebody: that one gets the line and
  /// does it. None: it is just done.
  std::function<Json(const Json& line, const std::function<Json()>& deed)> noteHostDeed;
  /// Does a user's act, or what comes in its place. None: it is just done.
  std::function<void(const Json& line, const std::function<void()>& act)> aroundUserAct;
  /// After the control's end nothing but a "get" is allowed.
  bool ended = false;

  /// The line's result, as ControlAccess::act returns it.
  Json act(const Json& line);

 private:
  void perform(const Json& line);
  Json doNoted(const Json& line, const std::function<Json()>& deed);
  Json get(const Json& line) const;
  Json call(const Json& line) const;
  Json formState(const Form& form) const;

  const Screen& screen_;
  FormDirectory& forms_;
  UserActions actions_;
};

}  // namespace awizo::protocol
