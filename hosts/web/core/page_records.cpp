#include "hosts/web/core/page_records.h"

#include <charconv>

#include "hosts/web/core/border.h"
#include "hosts/web/core/page_files.h"
#include "platform/run_time_error.h"

namespace awizo::web {

namespace {

template <class Number>
Number numberIn(const std::string& text) {
  Number number{};
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

}  // namespace

std::vector<FoundRecord> PageRecords::records() {
  // Of each record its name, its size, when it was changed, and "1" for one that is in use.
  constexpr std::size_t fieldsOfARecord = 4;
  const Fields fields = checked(ask({"records", path_}));
  std::vector<FoundRecord> found;
  for (std::size_t at = 0; at + fieldsOfARecord <= fields.size(); at += fieldsOfARecord) {
    found.push_back({fields[at], numberIn<std::uint64_t>(fields[at + 1]),
                     numberIn<std::int64_t>(fields[at + 2]), fields[at + 3] == "1"});
  }
  return found;
}

NewRecord PageRecords::create() {
  const Fields made = checked(ask({"newRecord", path_}));
  return {made.at(0), openedPageFile(made.at(1))};
}

std::string PageRecords::read(std::string_view name) {
  return std::move(checked(ask({"readRecord", path_, std::string(name)})).at(0));
}

std::string PageRecords::readBeside(std::string_view, std::string_view) {
  throw errors::fileNotFound();
}

void PageRecords::remove(std::string_view name) {
  checked(ask({"removeRecord", path_, std::string(name)}));
}

}  // namespace awizo::web
