#pragma once

#include <string>

#include "platform/locale.h"

namespace awizo::web {

/// A locale as the page's side knows it.
class PageLocale final : public Locale {
 public:
  /// By a name such as "ru_RU" or "en_US.UTF-8".
  explicit PageLocale(std::string name);

  const LocaleFacts& facts() const override { return facts_; }
  std::string shortDate(Date date) const override;
  std::string shortTime(TimeOfDay time) const override;
  std::string longDate(Date date) const override;
  std::string upper(std::string_view text) const override;
  std::string lower(std::string_view text) const override;
  std::vector<std::int32_t> ranks(const std::vector<std::string_view>& texts) const override;
  int compare(std::string_view left, std::string_view right) const override;
  std::string toSingleByte(std::string_view text) const override;
  std::string fromSingleByte(std::string_view bytes) const override;

 private:
  std::string text(const char* question, const std::string& argument) const;

  std::string name_;
  LocaleFacts facts_;
  // The last one: an order's lines ask for the same day's a thousand times.
  mutable Date lastShort_;
  mutable std::string lastShortText_;
};

}  // namespace awizo::web
