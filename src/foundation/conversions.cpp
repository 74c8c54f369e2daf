#include "foundation/conversions.h"

#include <cmath>
#include <utility>

#include "foundation/date_text.h"
#include "foundation/number_text.h"
#include "platform/narrow.h"
#include "platform/text.h"

namespace awizo {
namespace {

/// A count of months, weeks or days; a number with a fraction is no count.
std::int16_t wholeCount(double number) {
  if (number != std::trunc(number)) throw errors::typeMismatch();
  if (std::abs(number) > 32768) throw errors::overflow();
  return narrow16(static_cast<std::int64_t>(number));
}

std::optional<Date> plusPeriod(Date date, std::int16_t count, std::string_view code) {
  if (code == "802") return plusMonths(date, count);
  if (code == "803") return plusDays(date, narrow16(std::int64_t{count} * 7));
  if (code == "804") return plusDays(date, count);
  return date;
}

}  // namespace

std::string Conversions::GetDecimalSeparator() const {
  const std::string half = plainNumber(0.5);
  return std::string(lastCharacters(firstCharacters(half, 2), 1));
}

std::string Conversions::CommaToDot(std::string_view text) { return replaceAll(text, ",", "."); }
std::string Conversions::DotToComma(std::string_view text) { return replaceAll(text, ".", ","); }

std::string Conversions::FormatFixed(std::string_view text, int decimals) const {
  if (decimals < 0) throw errors::invalidProcedureCall();
  const LocaleFacts& facts = locale_.facts();
  const std::optional<DecimalNumber> number = readNumber(text, facts);
  if (!number) return std::string(text);
  return fixedText(*number, decimals, facts.decimalSeparator);
}

std::string Conversions::withLocalSeparator(std::string_view text) const {
  std::string local;
  local.reserve(text.size());
  for (const char c : text) {
    if (c == ',' || c == '.') {
      local += decimalSeparator_;
    } else {
      local += c;
    }
  }
  return local;
}

std::string Conversions::NormalizeDecimal(std::string_view text, int decimals) const {
  return FormatFixed(withLocalSeparator(text), decimals);
}

std::string Conversions::FormatForXml(std::string_view text, int decimals) const {
  const std::string fixed = FormatFixed(text, decimals);
  return fixed.empty() ? "-1" : replaceAll(fixed, decimalSeparator_, ".");
}

double Conversions::MyDouble(std::string_view text) const {
  const std::optional<DecimalNumber> number =
      readNumber(NormalizeDecimal(text, 3), locale_.facts());
  return number ? toFloating(*number) : 0;
}

std::string Conversions::MultiplyToAmount(std::string_view quantity, std::string_view price) const {
  try {
    const double a = toDouble(NormalizeDecimal(quantity, 3));
    const double b = toDouble(NormalizeDecimal(price, 2));
    return CommaToDot(FormatFixed(plainNumber(a * b), 2));
  } catch (const RunTimeError&) {
    return "";
  }
}

std::string Conversions::FormatDateIso(Date date) { return isoDate(date); }
std::string Conversions::FormatTimeHm(TimeOfDay time) { return hourMinute(time); }

std::string Conversions::AddPeriodToDate(Date date, std::string_view count,
                                         std::string_view code) const {
  try {
    const std::optional<Date> moved = plusPeriod(date, wholeCount(toDouble(count)), code);
    return moved ? isoDate(*moved) : "";
  } catch (const RunTimeError&) {
    return "";
  }
}

bool Conversions::isNumeric(std::string_view text) const {
  return plainValue(text, locale_.facts()) || readNumber(text, locale_.facts());
}

double Conversions::toDouble(std::string_view text) const {
  if (const auto plain = plainValue(text, locale_.facts())) return *plain;
  const std::optional<DecimalNumber> number = readNumberOfAnySize(text, locale_.facts());
  if (!number) throw errors::typeMismatch();
  const double value = toFloating(*number);
  if (!std::isfinite(value)) throw errors::overflow();
  return value;
}

std::int16_t Conversions::toInt16(std::string_view text) const {
  // To the nearest, halves to the even neighbour, whatever the mode of the processor.
  const double number = toDouble(text);
  const double below = std::floor(number);
  const double rest = number - below;
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0);
  return wholeCount(up ? below + 1 : below);
}

std::string Conversions::plainNumber(double value) const {
  if (!std::isfinite(value)) throw errors::overflow();
  return floatingText(value, locale_.facts().decimalSeparator);
}

Date Conversions::toDate(std::string_view text) const {
  const std::optional<Date> date = readDate(text, locale_.facts());
  if (!date) throw errors::typeMismatch();
  return *date;
}

TimeOfDay Conversions::toTime(std::string_view text) const {
  const std::optional<TimeOfDay> time = readTime(text, locale_.facts());
  if (!time) throw errors::typeMismatch();
  return *time;
}

}  // namespace awizo
