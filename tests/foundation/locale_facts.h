#pragma once

#include "platform/locale.h"

namespace awizo::test {

inline LocaleFacts russianFacts() {
  return {",", {" ", "\u00A0"}, "₽", DateOrder::dayMonthYear, true};
}

inline LocaleFacts americanFacts() { return {".", {","}, "$", DateOrder::monthDayYear, false}; }

/// A locale that knows its facts and nothing more; what numbers and dates need.
class FactsLocale : public Locale {
 public:
  explicit FactsLocale(LocaleFacts facts) : facts_(std::move(facts)) {}

  const LocaleFacts& facts() const override { return facts_; }
  std::string shortDate(Date) const override { return {}; }
  std::string shortTime(TimeOfDay) const override { return {}; }
  std::string longDate(Date) const override { return {}; }
  std::string upper(std::string_view text) const override { return std::string(text); }
  std::string lower(std::string_view text) const override { return std::string(text); }
  std::string collationKey(std::string_view text) const override { return std::string(text); }
  std::string toSingleByte(std::string_view text) const override { return std::string(text); }
  std::string fromSingleByte(std::string_view bytes) const override { return std::string(bytes); }

 private:
  LocaleFacts facts_;
};

}  // namespace awizo::test
