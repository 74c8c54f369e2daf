#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/locale.h"

namespace awizo {

/// A locale as ICU knows it, with the Gregorian calendar and the digits 0 to 9.
class IcuLocale final : public Locale {
 public:
  /// By a name such as "ru_RU" or "en_US.UTF-8". A name that names no locale ("", "C", "POSIX", an
  /// unknown language) means ru_RU.
  explicit IcuLocale(std::string_view name);
  ~IcuLocale() override;

  /// The locale that LC_ALL, else LC_NUMERIC, else LANG names.
  static std::string environmentName();

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
  struct Parts;

  LocaleFacts facts_;
  std::unique_ptr<const Parts> parts_;
};

}  // namespace awizo
