#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace awizo::web {

// The border between the core and the JavaScript around it. A question is its name and its
// arguments, the answer a list too: all of them bytes, so that nothing is encoded twice.

using Fields = std::vector<std::string>;

/// A question's field as the border's other side finds it: long texts aren't copied on their way.
struct AskedField {
  explicit AskedField(std::string_view field) : bytes(field.data()), size(field.size()) {}

  const char* bytes;
  std::size_t size;
};

/// Asks what may take time. The core is suspended meanwhile, with all that is on its stack.
Fields ask(const Fields& question);
/// Asks what is known at once.
Fields askNow(const Fields& question);
Fields askNow(std::initializer_list<std::string_view> question);

/// Seconds of local time since 1970 began. Filling in an order asks thousands of times, so that
/// this is no question.
double localSeconds();

/// The answer to a question that can fail begins with the number of its run-time error, "0" for
/// none: raises that error, or returns what follows.
Fields checked(Fields answer);

}  // namespace awizo::web
