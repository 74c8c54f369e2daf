#include "desk/document_faults.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "desk/line_words.h"
#include "formats/header_validation.h"
#include "platform/text.h"
#include "tables/columns/columns.h"
#include "tables/package_references.h"

namespace awizo {
namespace {

/// Collects the faults of one document.
class Finder {
 public:
  explicit Finder(const Editor& editor)
      : editor_(editor),
        lines_(editor.form.grdPozycje),
        packages_(editor.form.grdOpakowania),
        lineCount_(countOf(lines_, editor.session.LineCount)),
        packageCount_(countOf(packages_, editor.session.IloscPozycjiOpak)) {}

  std::vector<DocumentFault> find() {
    findInHeader();
    findInLines();
    findInPackages();
    return std::move(faults_);
  }

 private:
  static int countOf(const Table& table, int counted) {
    return std::min(counted, table.rows() - 1);
  }

  void findInHeader() {
    for (const HeaderFault& fault : headerFaults(editor_)) {
      faults_.push_back({"Заголовок", std::string(fault.message), fault.field});
    }
  }

  void findInLines() {
    if (lineCount_ == 0) faults_.push_back({"Строки", "в документе нет ни одной строки", &lines_});
    for (int row = 1; row <= lineCount_; ++row) {
      addLine(row, lineFaultWords(editor_, row));
      addLine(row, unpackedWords(row));
    }
  }

  void addLine(int row, const std::string& what) {
    if (what.empty()) return;
    const std::string& name = lines_.cell(row, GRD_POZ_NAME);
    faults_.push_back(
        {joined({"Строка ", lines_.cell(row, GRD_POZ_LP), name.empty() ? "" : " · ", name}), what,
         &lines_, row});
  }

  /// A line counts as packed where the two cells are the same to the letter.
  std::string unpackedWords(int row) const {
    const std::string& despatched = lines_.cell(row, GRD_POZ_QTY_DESPATCHED);
    const std::string& packed = lines_.cell(row, GRD_POZ_PACKED_QTY);
    if (despatched == packed) return "";
    const Conversions& conversions = editor_.conversions;
    std::string words = joined({"отгружено ", shortNumber(conversions, despatched), ", упаковано ",
                                shortNumber(conversions, packed)});
    const std::string rest = unpackedQuantity(editor_, row);
    if (rest.starts_with('-')) return words + ": упаковано больше, чем отгружено";
    return rest.empty() || rest == "0" ? words : words + ", осталось " + rest;
  }

  void findInPackages() {
    if (packageCount_ == 0) {
      if (lineCount_ > 0) faults_.push_back({"Упаковки", "в документе нет упаковок", &packages_});
      return;
    }
    const std::unordered_set<std::string> filled = filledPackages();
    std::unordered_map<std::string, int> rowsOfNumbers;
    for (int row = 1; row <= packageCount_; ++row) {
      const std::string number(trimmed(packages_.cell(row, GRD_OPAK_SERIAL_NUMBER)));
      if (number.empty() || number == missingValue) {
        addPackage(row, "нет номера");
      } else if (const auto [first, isNew] = rowsOfNumbers.try_emplace(number, row); !isNew) {
        addPackage(row, joined({"номер ", number, " уже есть у упаковки ",
                                packages_.cell(first->second, GRD_OPAK_ID_LOW)}));
      }
      if (!filled.contains(packages_.cell(row, GRD_OPAK_SERIAL))) addPackage(row, "пустая");
    }
  }

  void addPackage(int row, std::string what) {
    const std::string& description = packages_.cell(row, GRD_OPAK_DESC);
    faults_.push_back({joined({"Упаковка ", packages_.cell(row, GRD_OPAK_ID_LOW),
                               description.empty() ? "" : " · ", description}),
                       std::move(what), &packages_, row});
  }

  /// Serials of the packages that hold a line or another package.
  std::unordered_set<std::string> filledPackages() const {
    std::unordered_set<std::string> filled;
    for (int row = 1; row <= lineCount_; ++row) {
      for (const PackageReference& reference :
           packageReferences(lines_.cell(row, GRD_POZ_PACK_REFS))) {
        filled.insert(reference.packageId);
      }
    }
    for (int row = 1; row <= packageCount_; ++row) {
      filled.insert(packages_.cell(row, GRD_OPAK_PARENT_SERIAL));
    }
    return filled;
  }

  static constexpr std::string_view missingValue = "-1";

  const Editor& editor_;
  Table& lines_;
  Table& packages_;
  int lineCount_;
  int packageCount_;
  std::vector<DocumentFault> faults_;
};

}  // namespace

std::vector<DocumentFault> faultsOf(const Editor& editor) { return Finder(editor).find(); }

void goTo(const DocumentFault& fault) {
  if (fault.place == nullptr) return;
  if (fault.row == 0) return fault.place->userFocus();
  static_cast<Table&>(*fault.place).userRow(fault.row);
}

}  // namespace awizo
