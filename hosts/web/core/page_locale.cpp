#include "hosts/web/core/page_locale.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <numeric>
#include <stdexcept>
#include <utility>

#include "hosts/web/core/border.h"

namespace awizo::web {

namespace {

std::string dateText(Date date) {
  return std::to_string(int(date.year())) + "-" + std::to_string(unsigned(date.month())) + "-" +
         std::to_string(unsigned(date.day()));
}

std::string timeText(TimeOfDay time) {
  return std::to_string(time.hour) + ":" + std::to_string(time.minute) + ":" +
         std::to_string(time.second);
}

DateOrder dateOrder(std::string_view letters) {
  if (letters == "mdy") return DateOrder::monthDayYear;
  return letters == "dmy" ? DateOrder::dayMonthYear : DateOrder::yearMonthDay;
}

/// The texts in that order, each with a zero byte as its end. Those within count for nothing in any
/// locale's order.
std::string together(const std::vector<std::string_view>& texts,
                     const std::vector<std::size_t>& order) {
  std::size_t size = texts.size();
  for (const std::string_view text : texts) size += text.size();
  std::string all;
  all.reserve(size);
  for (const std::size_t index : order) {
    const auto begin = static_cast<std::ptrdiff_t>(all.size());
    all += texts[index];
    all.erase(std::remove(all.begin() + begin, all.end(), '\0'), all.end());
    all += '\0';
  }
  return all;
}

}  // namespace

PageLocale::PageLocale(std::string name) : name_(std::move(name)) {
  Fields facts = askNow({"facts", name_});
  facts_.decimalSeparator = facts.at(0);
  facts_.currencySign = facts.at(1);
  facts_.dateOrder = dateOrder(facts.at(2));
  facts_.dotSeparatesDates = facts.at(3) == "1";
  facts_.groupSeparators.assign(facts.begin() + 4, facts.end());
}

std::string PageLocale::text(const char* question, const std::string& argument) const {
  return std::move(askNow({question, name_, argument}).at(0));
}

std::string PageLocale::shortDate(Date date) const {
  if (lastShortText_.empty() || date != lastShort_) {
    lastShortText_ = text("shortDate", dateText(date));
    lastShort_ = date;
  }
  return lastShortText_;
}

std::string PageLocale::shortTime(TimeOfDay time) const {
  return text("shortTime", timeText(time));
}

std::string PageLocale::longDate(Date date) const { return text("longDate", dateText(date)); }

std::string PageLocale::upper(std::string_view given) const {
  return text("upper", std::string(given));
}

std::string PageLocale::lower(std::string_view given) const {
  return text("lower", std::string(given));
}

std::vector<std::int32_t> PageLocale::ranks(const std::vector<std::string_view>& texts) const {
  // The browser compares slowly, and least where texts come in order: that of their bytes is nearly
  // its own.
  std::vector<std::size_t> order(texts.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(),
            [&](std::size_t left, std::size_t right) { return texts[left] < texts[right]; });
  // The ranks' own bytes, one after another.
  const std::string bytes = askNow({"ranks", name_, together(texts, order)}).at(0);
  std::vector<std::int32_t> ranks(texts.size());
  if (bytes.size() != ranks.size() * sizeof(std::int32_t)) {
    throw std::logic_error("not as many ranks as texts");
  }
  const char* rank = bytes.data();
  for (const std::size_t index : order) {
    std::memcpy(&ranks[index], rank, sizeof(std::int32_t));
    rank += sizeof(std::int32_t);
  }
  return ranks;
}

int PageLocale::compare(std::string_view left, std::string_view right) const {
  const std::string sign = askNow({"compare", name_, left, right}).at(0);
  if (sign == "0") return 0;
  return sign == "-1" ? -1 : 1;
}

std::string PageLocale::toSingleByte(std::string_view given) const {
  return text("toSingleByte", std::string(given));
}

std::string PageLocale::fromSingleByte(std::string_view bytes) const {
  return text("fromSingleByte", std::string(bytes));
}

}  // namespace awizo::web
