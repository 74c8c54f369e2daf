#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "hosts/protocol/values/argument_values.h"

namespace awizo::protocol {

/// A text that a line passes to a procedure.
using Text = const std::string&;

/// The procedures that a line can call, by name. A procedure is registered as a function; its
/// parameters say what the line has to pass: values, or references to what the procedure changes. A
/// trailing std::optional parameter may be left out.
class Procedures {
 public:
  template <class Function>
  void add(std::string name, Function function) {
    procedures_[std::move(name)] = bind(std::function(std::move(function)));
  }

  bool knows(std::string_view name) const { return procedures_.contains(name); }
  /// Calls a procedure with the line's arguments, a JSON array. The result is an object: "value",
  /// where there is one, and "args", where the procedure has arguments that it may change. Throws
  /// BadLine, and what the procedure throws.
  Json call(std::string_view name, const Json& arguments) const;

 private:
  using Procedure = std::function<Json(const Json&)>;

  template <class Result, class... Arguments>
  static Procedure bind(std::function<Result(Arguments...)> function) {
    return [function = std::move(function)](const Json& arguments) {
      requireCount(arguments.size(), {isOptional<std::decay_t<Arguments>>...});
      return run(function, arguments, std::index_sequence_for<Arguments...>{});
    };
  }

  template <class Result, class... Arguments, std::size_t... index>
  static Json run(const std::function<Result(Arguments...)>& function, const Json& arguments,
                  std::index_sequence<index...>) {
    std::tuple<std::decay_t<Arguments>...> values{
        argumentAt<std::decay_t<Arguments>>(arguments, index)...};
    Json outcome = Json::object();
    if constexpr (std::is_void_v<Result>) {
      function(static_cast<Arguments>(std::get<index>(values))...);
    } else {
      outcome["value"] = toJson(function(static_cast<Arguments>(std::get<index>(values))...));
    }
    if constexpr ((changeable<Arguments> || ...)) {
      outcome["args"] = Json::array({toJson(std::get<index>(values))...});
    }
    return outcome;
  }

  template <class Argument>
  static constexpr bool changeable =
      std::is_lvalue_reference_v<Argument> && !std::is_const_v<std::remove_reference_t<Argument>>;

  /// One mark for each parameter: whether it may be left out.
  static void requireCount(std::size_t given, std::initializer_list<bool> mayBeLeftOut);

  std::map<std::string, Procedure, std::less<>> procedures_;
};

}  // namespace awizo::protocol
