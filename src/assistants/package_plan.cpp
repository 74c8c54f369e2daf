#include "assistants/package_plan.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "platform/text.h"
#include "tables/columns/columns.h"

namespace awizo {
namespace {

constexpr std::string_view counter = "#";

std::string patternOf(const PackagePlan& plan) {
  std::string pattern(trimmed(plan.description));
  if (plan.count > 1 && pattern.find(counter) == pattern.npos) pattern += " #";
  return pattern;
}

/// The counter in a description of this pattern; 0 for any other text. Both are in capitals.
int numberIn(std::string_view description, std::string_view pattern) {
  const std::size_t mark = pattern.find(counter);
  if (mark == pattern.npos || !description.starts_with(pattern.substr(0, mark))) return 0;
  int number = 0;
  const std::string_view rest = description.substr(mark);
  const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
  if (error != std::errc() || number < 1) return 0;
  return replaceAll(pattern, counter, std::to_string(number)) == description ? number : 0;
}

}  // namespace

int roomForPackages(const Editor& editor) {
  constexpr int most = std::numeric_limits<std::int16_t>::max();
  // The last row whose cells the 16-bit index reaches, and the last serial of 16 bits.
  constexpr int mostRows = (most - GRD_OPAK_SERIAL) / packageColumnCount;
  return std::min(mostRows - editor.session.IloscPozycjiOpak, most - editor.form.LastPackageSerial);
}

std::string planRefusal(const PackagePlan& plan, const Editor& editor) {
  if (plan.count < 1) return "Сколько упаковок добавить?";
  const int room = roomForPackages(editor);
  if (plan.count > room) {
    return joined(
        {"Столько упаковок в документ не поместится, можно ещё ", std::to_string(room), "."});
  }
  if (trimmed(plan.description).empty()) return "Дайте упаковкам описание.";
  // They would shift what the line keeps of its packages.
  if (plan.description.find_first_of("$@") != plan.description.npos) {
    return "В описании не может быть знаков $ и @.";
  }
  return "";
}

std::vector<std::string> descriptionsOf(const PackagePlan& plan, const Editor& editor) {
  const std::string pattern = patternOf(plan);
  const Locale& locale = editor.platform.locale;
  const std::string upperPattern = locale.upper(pattern);
  int last = 0;
  for (int row = 1; row <= editor.session.IloscPozycjiOpak; ++row) {
    const std::string& description = editor.form.grdOpakowania.cell(row, GRD_OPAK_DESC);
    last = std::max(last, numberIn(locale.upper(description), upperPattern));
  }
  std::vector<std::string> descriptions;
  for (int i = 1; i <= plan.count; ++i) {
    descriptions.push_back(replaceAll(pattern, counter, std::to_string(last + i)));
  }
  return descriptions;
}

}  // namespace awizo
