#include "papers/digit_symbols.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/run_time_error.h"

namespace awizo::papers {
namespace {

/// Widths of the bars and gaps of each character, a digit for each in turn.
constexpr std::array<std::uint32_t, 106> characters{
    212222, 222122, 222221, 121223, 121322, 131222, 122213, 122312, 132212, 221213, 221312, 231212,
    112232, 122132, 122231, 113222, 123122, 123221, 223211, 221132, 221231, 213212, 223112, 312131,
    311222, 321122, 321221, 312212, 322112, 322211, 212123, 212321, 232121, 111323, 131123, 131321,
    112313, 132113, 132311, 211313, 231113, 231311, 112133, 112331, 132131, 113123, 113321, 133121,
    313121, 211331, 231131, 213113, 213311, 213131, 311123, 311321, 331121, 312113, 312311, 332111,
    314111, 221411, 431111, 111224, 111422, 121124, 121421, 141122, 141221, 112214, 112412, 122114,
    122411, 142112, 142211, 241211, 221114, 413111, 241112, 134111, 111242, 121142, 121241, 114212,
    124112, 124211, 411212, 421112, 421211, 212141, 214121, 412121, 111143, 111341, 131141, 114113,
    114311, 411113, 411311, 113141, 114131, 311141, 411131, 211412, 211214, 211232};
constexpr std::uint32_t stop = 2331112;

constexpr std::size_t toSetC = 99;
constexpr std::size_t toSetB = 100;
constexpr std::size_t function1 = 102;
constexpr std::size_t startInSetC = 105;
constexpr std::size_t zeroInSetB = 16;
constexpr std::size_t checkModulus = 103;

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// The length of a value with this identifier is known, so that nothing ends it.
bool hasKnownLength(std::string_view identifier) {
  constexpr std::array<std::string_view, 22> known{"00", "01", "02", "03", "04", "11", "12", "13",
                                                   "14", "15", "16", "17", "18", "19", "20", "31",
                                                   "32", "33", "34", "35", "36", "41"};
  return std::ranges::find(known, identifier.substr(0, 2)) != known.end();
}

/// Runs of digits, between which a separator stands.
std::vector<std::string> runsOf(std::string_view elements) {
  std::vector<std::string> runs(1);
  bool ended = true;
  while (!elements.empty()) {
    const std::size_t close = elements.find(')');
    if (elements.front() != '(' || close == std::string_view::npos) {
      throw errors::invalidProcedureCall();
    }
    if (!ended) runs.emplace_back();
    const std::string_view identifier = elements.substr(1, close - 1);
    elements.remove_prefix(close + 1);
    const std::string_view value = elements.substr(0, elements.find('('));
    elements.remove_prefix(value.size());
    if (identifier.empty() || value.empty()) throw errors::invalidProcedureCall();
    runs.back().append(identifier).append(value);
    ended = hasKnownLength(identifier);
  }
  return runs;
}

std::vector<std::size_t> valuesOf(const std::vector<std::string>& runs) {
  std::vector<std::size_t> values{startInSetC};
  bool inSetC = true;
  for (const std::string& run : runs) {
    if (run.empty() || !std::ranges::all_of(run, isDigit)) throw errors::invalidProcedureCall();
    values.push_back(function1);
    for (std::size_t i = 0; i < run.size(); i += 2) {
      const auto first = static_cast<std::size_t>(run[i] - '0');
      const bool isPair = i + 1 < run.size();
      if (isPair != inSetC) values.push_back(isPair ? toSetC : toSetB);
      inSetC = isPair;
      values.push_back(isPair ? first * 10 + static_cast<std::size_t>(run[i + 1] - '0')
                              : first + zeroInSetB);
    }
  }
  std::size_t check = values.front();
  for (std::size_t i = 1; i < values.size(); ++i) check += i * values[i];
  values.push_back(check % checkModulus);
  return values;
}

void append(std::vector<bool>& modules, std::uint32_t widths) {
  bool isDark = true;
  for (const char width : std::to_string(widths)) {
    modules.insert(modules.end(), static_cast<std::size_t>(width - '0'), isDark);
    isDark = !isDark;
  }
}

}  // namespace

std::vector<bool> DigitSymbols::gs1Symbol(std::string_view elements) const {
  std::vector<bool> modules;
  for (const std::size_t value : valuesOf(runsOf(elements))) append(modules, characters[value]);
  append(modules, stop);
  return modules;
}

}  // namespace awizo::papers
