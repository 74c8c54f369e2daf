#pragma once

#include "platform/locale.h"

namespace awizo::test {

inline LocaleFacts russianFacts() {
  return {",", {" ", "\u00A0"}, "₽", DateOrder::dayMonthYear, true};
}

inline LocaleFacts americanFacts() { return {".", {","}, "$", DateOrder::monthDayYear, false}; }

}  // namespace awizo::test
