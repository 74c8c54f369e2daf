#include "desk/packing_overview.h"

#include <algorithm>
#include <utility>

#include "desk/line_words.h"
#include "formats/advice_of_tables.h"
#include "formats/packing.h"
#include "papers/amount.h"
#include "papers/words.h"
#include "platform/run_time_error.h"
#include "platform/text.h"
#include "tables/columns/columns.h"

namespace awizo {
namespace {

/// Followed by how many amounts the sums beside it don't hold.
constexpr std::string_view notAdded = "не сложено: ";

/// Amounts by the words of their unit.
class Contents {
 public:
  void add(const std::string& unit, papers::Amount amount) {
    const auto found = std::ranges::find(sums_, unit, &papers::Sums::value_type::first);
    papers::Amount& sum =
        found != sums_.end() ? found->second : sums_.emplace_back(unit, papers::Amount{}).second;
    const auto whole = papers::sumOf(sum, amount);
    sum = whole.value_or(sum);
    if (!whole) ++leftOut_;
  }
  void add(const Contents& inside) {
    for (const auto& [unit, amount] : inside.sums_) add(unit, amount);
    leftOut_ += inside.leftOut_;
  }
  void leaveOut() { ++leftOut_; }

  const papers::Sums& sums() const { return sums_; }
  int leftOut() const { return leftOut_; }

 private:
  papers::Sums sums_;
  int leftOut_ = 0;  ///< amounts that no sum holds
};

class OverviewMaker {
 public:
  explicit OverviewMaker(const Editor& editor)
      : editor_(editor), advice_(adviceOf(editor)), packing_(packingOf(advice_)) {}

  PackingOverview make() {
    addLines();
    addUp();
    for (std::size_t i = 0; i < packing_.packages.size(); ++i) addPackage(i);
    return std::move(overview_);
  }

 private:
  void addLines() {
    const Table& lines = editor_.form.grdPozycje;
    int whole = 0;
    for (int row = 1; row <= editor_.session.LineCount; ++row) {
      const auto number = [&](int column) {
        return shortNumber(editor_.conversions, lines.cell(row, column));
      };
      const std::string rest = unpackedQuantity(editor_, row);
      const bool isWhole = rest == "0" || rest.starts_with('-');
      whole += isWhole ? 1 : 0;
      overview_.lines.push_back(
          {row, lines.cell(row, GRD_POZ_LP), lines.cell(row, GRD_POZ_NAME),
           joined({number(GRD_POZ_PACKED_QTY), " из ", number(GRD_POZ_QTY_DESPATCHED)}), isWhole});
    }
    const std::size_t all = overview_.lines.size();
    const bool isSingular = all % 10 == 1 && all % 100 != 11;
    overview_.summary = joined({"упаковано ", std::to_string(whole), " из ", std::to_string(all),
                                isSingular ? " строки" : " строк"});
  }

  /// What is in a package follows it, so that each is complete before it counts for the one around.
  void addUp() {
    contents_.resize(packing_.packages.size());
    std::vector<std::size_t> ways;
    std::vector<std::size_t> around(packing_.packages.size());
    for (std::size_t i = 0; i < packing_.packages.size(); ++i) {
      const auto level = static_cast<std::size_t>(packing_.packages[i].level);
      ways.resize(level);
      ways.back() = i;
      around[i] = level > 1 ? ways[level - 2] : i;
    }
    for (std::size_t i = packing_.packages.size(); i-- > 0;) {
      for (const PackedPart& part : packing_.packages[i].lines) {
        const auto amount = papers::amountOf(part.quantity.value_or(""));
        if (amount) {
          contents_[i].add(papers::unitWords(part.line->unit), *amount);
        } else {
          contents_[i].leaveOut();
        }
      }
      if (around[i] != i) contents_[around[i]].add(contents_[i]);
    }
  }

  void addPackage(std::size_t number) {
    const PackedPackage& packed = packing_.packages[number];
    const int package = 1 + static_cast<int>(packed.package - advice_.packages.data());
    std::vector<std::string> quantities;
    for (const auto& [unit, amount] : contents_[number].sums()) {
      quantities.push_back(amountWords(papers::amountText(amount), unit));
    }
    const int leftOut = contents_[number].leftOut();
    if (leftOut > 0) quantities.push_back(joined({notAdded, std::to_string(leftOut)}));
    const std::string& serial = packed.package->id;
    overview_.places.push_back({packed.level, package, 0, serial,
                                editor_.form.grdOpakowania.cell(package, GRD_OPAK_DESC),
                                join(quantities, " · ")});
    for (const PackedPart& part : packed.lines) {
      const int line = 1 + static_cast<int>(part.line - advice_.lines.data());
      overview_.places.push_back({packed.level + 1, package, line, serial,
                                  joined({part.line->number, " ", part.line->description}),
                                  amountWords(papers::amountText(part.quantity.value_or("?")),
                                              papers::unitWords(part.line->unit))});
    }
  }

  std::string amountWords(const std::string& amount, const std::string& unit) const {
    const std::string number = editor_.conversions.withLocalSeparator(amount);
    return unit.empty() ? number : joined({number, " ", unit});
  }

  const Editor& editor_;
  const DespatchAdvice advice_;
  const Packing packing_;
  std::vector<Contents> contents_;  ///< of each package, those inside included
  PackingOverview overview_;
};

}  // namespace

PackingOverview packingOverview(const Editor& editor) {
  PackingOverview overview;
  const auto error = caughtError([&] { overview = OverviewMaker(editor).make(); });
  if (error) overview.summary = error->description();
  return overview;
}

}  // namespace awizo
