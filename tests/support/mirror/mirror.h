#pragma once

#include <map>
#include <string>

#include "hosts/protocol/values/json.h"

namespace awizo::test {

/// A client that knows of forms only what a feed of changes sends it.
class Mirror {
 public:
  /// Members of an object in any order.
  using State = nlohmann::json;

  void take(const protocol::Json& changes);

  /// The form and the control as a "get" would answer them, of a form without its public members.
  State form(const std::string& name) const;
  State control(const std::string& name) const;
  /// All that is held of it, as it was sent; rows by number.
  const State& held(const std::string& name) const { return controls_.at(name).members; }
  const std::map<int, State>& rows(const std::string& name) const {
    return controls_.at(name).rows;
  }
  bool knows(const std::string& name) const { return controls_.contains(name); }

 private:
  struct Held {
    State members = State::object();
    std::map<int, State> rows;
  };

  std::map<std::string, State> forms_;
  std::map<std::string, Held> controls_;
};

}  // namespace awizo::test
