#include "hosts/web/core/page_clock.h"

#include <charconv>
#include <cstddef>

#include "hosts/web/core/border.h"

namespace awizo::web {

Moment PageClock::now() const {
  const Fields parts = askNow({"clock"});
  const auto number = [&](std::size_t part) {
    int value = 0;
    const std::string& text = parts.at(part);
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
  };
  return {makeDate(number(0), static_cast<unsigned>(number(1)), static_cast<unsigned>(number(2))),
          {number(3), number(4), number(5)}};
}

}  // namespace awizo::web
