#include "formats/customs_number.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/text.h"

namespace awizo {
namespace {

/// Stands for the first digit of a number of a paper declaration.
constexpr std::string_view paperLetter = "П";

std::string twoDigits(unsigned value) {
  return {static_cast<char>('0' + value / 10 % 10), static_cast<char>('0' + value % 10)};
}

std::string withoutPaperLetter(std::string_view text) { return replaceAll(text, paperLetter, ""); }

/// The number without decimals and with at least `width` digits; a text that is no number as it is.
std::string zeroPadded(const Conversions& conversions, const std::string& text, int width) {
  if (!conversions.isNumeric(text)) return text;
  std::string number = conversions.FormatFixed(text, 0);
  const std::size_t digitsAt = number.starts_with('-') ? 1 : 0;
  const std::size_t wanted = static_cast<std::size_t>(std::max(width, 0)) + digitsAt;
  if (number.size() < wanted) number.insert(digitsAt, wanted - number.size(), '0');
  return number;
}

bool hasDigits(const Conversions& conversions, std::string_view field, std::size_t width) {
  return IsCDNPartNumeric(conversions, field) && countCharacters(field) == width;
}

/// The four fields of three or four pieces; nothing for any other number of pieces.
std::optional<CustomsNumberFields> fieldsOf(const std::vector<std::string>& pieces) {
  switch (pieces.size()) {
    case 4:
      return CustomsNumberFields{pieces[0], pieces[1], pieces[2], pieces[3]};
    case 3:
      return CustomsNumberFields{pieces[0], pieces[1], pieces[2], ""};
    default:
      return std::nullopt;
  }
}

int faultyField(const Conversions& conversions, const CustomsNumberFields& fields) {
  if (fields[0].empty() && fields[2].empty()) return 0;
  if (!hasDigits(conversions, fields[0], 8)) return 1;
  if (!conversions.isNumeric(fields[1]) || countCharacters(fields[1]) != 6) return 2;
  if (!hasDigits(conversions, fields[2], 7)) return 3;
  if (countCharacters(fields[3]) >= 4) return 4;
  return 0;
}

CustomsNumberFields splitOn(Work& work, std::string_view cdn, Date today) {
  std::vector<std::string> pieces = split(cdn, "/");
  if (pieces.empty()) pieces.emplace_back();
  DebugLog& log = work.session.log;
  log.trace("SplitCDN: cdn=", cdn);
  log.trace("SplitCDN: count=", pieces.size() - 1);
  const std::optional<CustomsNumberFields> fields = fieldsOf(pieces);
  if (fields) return *fields;
  return {"", FormatCDNDate(work, today), "", ""};
}

}  // namespace

CustomsNumberFields SplitCDN(Work& work, std::string_view cdn) {
  return splitOn(work, cdn, work.platform.clock.today());
}

std::string JoinCDN(std::string_view field1, std::string_view field2, std::string_view field3,
                    std::string_view field4) {
  if (field1.empty() && field3.empty()) return "";
  std::string cdn;
  cdn.append(field1).append("/").append(field2).append("/").append(field3);
  if (!trimmed(field4).empty()) cdn.append("/").append(field4);
  return cdn;
}

std::string FormatCDNDate(Work& work, Date date) {
  const auto year = static_cast<unsigned>(static_cast<int>(date.year()));
  const std::string text = twoDigits(static_cast<unsigned>(date.day())) +
                           twoDigits(static_cast<unsigned>(date.month())) + twoDigits(year % 100);
  work.session.log.trace("FormatCDNDate: ", text);
  return text;
}

bool IsCDNPartNumeric(const Conversions& conversions, std::string_view text) {
  const std::string_view first = firstCharacters(text, 1);
  return (first == paperLetter || conversions.isNumeric(first)) &&
         conversions.isNumeric(withoutPaperLetter(text));
}

std::string PadCDNPart(const Conversions& conversions, std::string_view text, int width) {
  const bool onPaper = firstCharacters(text, 1) == paperLetter;
  const std::string digits =
      zeroPadded(conversions, withoutPaperLetter(text), onPaper ? width - 1 : width);
  return onPaper ? std::string(paperLetter) + digits : digits;
}

int faultyCustomsNumberField(Work& work, std::string_view cdn) {
  // The day is told by the log alone. A record of the session would have it once for each line.
  return faultyField(work.conversions, splitOn(work, cdn, work.platform.clock.stamp().date));
}

int faultyCustomsNumberField(const Conversions& conversions, std::string_view cdn) {
  return faultyField(conversions, fieldsOf(split(cdn, "/")).value_or(CustomsNumberFields{}));
}

}  // namespace awizo
