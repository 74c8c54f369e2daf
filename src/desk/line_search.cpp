#include "desk/line_search.h"

#include <algorithm>
#include <array>
#include <functional>
#include <initializer_list>
#include <utility>

#include "tables/columns/columns.h"

namespace awizo {
namespace {

constexpr std::array searchedColumns{GRD_POZ_LP, GRD_POZ_EAN, GRD_POZ_NAME, GRD_POZ_CODE_BY_BUYER,
                                     GRD_POZ_CODE_BY_SELLER};

std::optional<int> nextRow(const Editor& editor, const std::function<bool(int row)>& fits) {
  const int count = editor.session.LineCount;
  const int current = editor.form.grdPozycje.row();
  for (int step = 1; step <= count; ++step) {
    const int row = (current - 1 + step) % count + 1;
    if (fits(row)) return row;
  }
  return std::nullopt;
}

std::string_view withoutZeros(std::string_view code) {
  code.remove_prefix(std::min(code.find_first_not_of('0'), code.size()));
  return code;
}

/// The digits after one of these.
std::string_view digitsAfter(std::string_view code, std::initializer_list<std::string_view> signs,
                             std::size_t digits) {
  for (const std::string_view before : signs) {
    if (code.size() == before.size() + digits && code.starts_with(before)) {
      return code.substr(before.size());
    }
  }
  return {};
}

/// The EAN in a symbol that says after it how many there are: "02", 14 digits, "37" and the count.
/// Where the kind was cut off, the EAN has lost the zero that fills it up, too.
std::string_view countedEanIn(std::string_view code) {
  constexpr std::array<std::pair<std::string_view, std::size_t>, 3> starts{
      {{"02", 14}, {"102", 14}, {"", 13}}};
  constexpr std::string_view countSign = "37";
  constexpr std::size_t longestCount = 8;
  for (const auto& [sign, digits] : starts) {
    const std::size_t before = sign.size() + digits + countSign.size();
    const bool hasCount = code.size() > before && code.size() <= before + longestCount;
    if (!hasCount || !code.starts_with(sign)) continue;
    const std::string_view ean = code.substr(sign.size());
    if (ean.substr(digits).starts_with(countSign)) return ean.substr(0, digits);
  }
  return {};
}

/// The EAN in a scanned code, without the zeros before it.
std::string_view eanIn(std::string_view code) {
  if (const std::string_view counted = countedEanIn(code); !counted.empty()) {
    return withoutZeros(counted);
  }
  const std::string_view after = digitsAfter(code, {"01", "02", "101", "102"}, 14);
  return withoutZeros(after.empty() ? code : after);
}

bool hasEan(const Editor& editor, int row, std::string_view code) {
  const std::string_view ean = eanIn(code);
  return !ean.empty() && withoutZeros(editor.form.grdPozycje.cell(row, GRD_POZ_EAN)) == ean;
}

}  // namespace

std::optional<int> findLine(const Editor& editor, std::string_view text) {
  if (text.empty()) return std::nullopt;
  const Locale& locale = editor.platform.locale;
  const std::string wanted = locale.upper(text);
  const Table& lines = editor.form.grdPozycje;
  return nextRow(editor, [&](int row) {
    return std::any_of(searchedColumns.begin(), searchedColumns.end(), [&](int column) {
      return locale.upper(lines.cell(row, column)).find(wanted) != std::string::npos;
    });
  });
}

std::optional<int> findScanned(const Editor& editor, std::string_view code) {
  return nextRow(editor, [&](int row) { return hasEan(editor, row, code); });
}

std::vector<int> linesScanned(const Editor& editor, std::string_view code) {
  const int count = editor.session.LineCount;
  const int current = std::max(editor.form.grdPozycje.row(), 1);
  std::vector<int> rows;
  for (int step = 0; step < count; ++step) {
    const int row = (current - 1 + step) % count + 1;
    if (hasEan(editor, row, code)) rows.push_back(row);
  }
  return rows;
}

std::string_view packageNumberIn(std::string_view code) {
  return digitsAfter(code, {"", "00", "100"}, 18);
}

std::optional<int> findPackage(const Editor& editor, std::string_view number) {
  const Table& packages = editor.form.grdOpakowania;
  for (int row = 1; row <= editor.session.IloscPozycjiOpak; ++row) {
    if (packages.cell(row, GRD_OPAK_SERIAL_NUMBER) == number) return row;
  }
  return std::nullopt;
}

bool ScannedCode::isWhole() const {
  constexpr std::size_t shortestEan = 8;
  return digits_.size() >= shortestEan;
}

std::string ScannedCode::end() {
  std::string code = isWhole() ? digits_ : "";
  forget();
  return code;
}

}  // namespace awizo
