#include "random_user/invariants.h"

#include <map>
#include <set>

#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// Goes through the tables and notes what is wrong.
class Inspection {
 public:
  Inspection(TestControl& desk, const Trust& trust) : desk_(desk), trust_(trust) {}

  std::vector<std::string> run() {
    checkSizes("grdPozycje", desk_.form.grdPozycje, desk_.session.LineCount);
    checkSizes("grdOpakowania", desk_.form.grdOpakowania, desk_.session.IloscPozycjiOpak);
    checkLines();
    checkTotals();
    checkPackages();
    checkForm();
    return broken_;
  }

 private:
  void require(bool holds, const std::string& rule) {
    if (!holds) broken_.push_back(rule);
  }

  /// A table without data has one empty row.
  void checkSizes(const std::string& name, const Table& table, int count) {
    require(table.rows() == (count == 0 ? 2 : count + 1), name + ": rows");
    if (count == 0 && table.rows() == 2) {
      require(TestEditor::row(table, 1) ==
                  std::vector<std::string>(static_cast<std::size_t>(table.columns())),
              name + ": the row of an empty table");
    }
    require(table.fixedRows() == 1 && table.redraw(), name + ": redraw");
  }

  void checkLines() {
    const Table& lines = desk_.form.grdPozycje;
    require(desk_.form.ValidLineCount <= desk_.session.LineCount, "count of valid lines");
    for (int row = 1; row <= desk_.session.LineCount; ++row) {
      const std::string line = "line " + std::to_string(row);
      require(!lines.cell(row, GRD_POZ_LP).empty(), line + ": number");
      if (trust_.references) checkPackedQuantity(row);
      for (int column = 1; column <= GRD_POZ_PACKED_QTY; ++column) {
        const Colour colour = lines.look(row, column).background;
        require(colour == white || colour == pink, line + ": colour");
      }
    }
  }

  void checkPackedQuantity(int row) {
    const Table& lines = desk_.form.grdPozycje;
    require(lines.cell(row, GRD_POZ_PACKED_QTY) ==
                desk_.control.GetPackedQuantity(lines.cell(row, GRD_POZ_PACK_REFS)),
            "packed quantity of line " + std::to_string(row));
  }

  void checkTotals() {
    const Table& totals = desk_.form.grdSuma;
    const int count = desk_.session.LineCount;
    require(totals.rows() == 2, "totals: rows");
    require(totals.cell(1, GRD_SUMA_LINE_COUNT) == (count == 0 ? "" : std::to_string(count)),
            "totals: count of lines");
  }

  void checkPackages() {
    const Table& packages = desk_.form.grdOpakowania;
    std::map<std::string, int> levels{{"1", 0}};
    for (int row = 1; row <= desk_.session.IloscPozycjiOpak; ++row) {
      const std::string& serial = packages.cell(row, GRD_OPAK_SERIAL);
      const int number = std::stoi(serial);
      require(number >= 2 && number <= desk_.form.LastPackageSerial, "serial " + serial);
      require(packages.cell(row, GRD_OPAK_ID_LOW) == std::to_string(number - 1), "ID " + serial);
      require(!packages.cell(row, GRD_OPAK_LP).empty(), "number of package " + serial);
      require(levels.emplace(serial, std::stoi(packages.cell(row, GRD_OPAK_LEVEL))).second,
              "serial " + serial + " stands twice");
    }
    if (trust_.tree) checkTree(levels);
    if (trust_.references) checkReferences(levels);
  }

  /// A package lies one level below its parent, which is there.
  void checkTree(const std::map<std::string, int>& levels) {
    const Table& packages = desk_.form.grdOpakowania;
    for (int row = 1; row <= desk_.session.IloscPozycjiOpak; ++row) {
      const std::string& serial = packages.cell(row, GRD_OPAK_SERIAL);
      const auto parent = levels.find(packages.cell(row, GRD_OPAK_PARENT_SERIAL));
      require(parent != levels.end(), "parent of package " + serial);
      if (parent == levels.end()) continue;
      require(levels.at(serial) == parent->second + 1, "level of package " + serial);
      // A user who takes the list's row back keeps the parent of that row.
      require(parent->first != "1" || packages.cell(row, GRD_OPAK_PARENT_DESC).empty(),
              "parent's description of package " + serial);
    }
  }

  /// Removing a package takes its references, so a line refers only to packages that are there. The
  /// list from which an assignment is changed may be older than that: its last row can have become
  /// one without a serial.
  void checkReferences(const std::map<std::string, int>& levels) {
    const Table& lines = desk_.form.grdPozycje;
    for (int row = 1; row <= desk_.session.LineCount; ++row) {
      const std::string& text = lines.cell(row, GRD_POZ_PACK_REFS);
      std::size_t start = 0;
      while (start < text.size()) {
        const std::string serial = text.substr(start, text.find('@', start) - start);
        require(serial.empty() || (serial != "1" && levels.contains(serial)),
                "line " + std::to_string(row) + " lies in package '" + serial + "'");
        const std::size_t end = text.find('$', start);
        start = end == text.npos ? text.size() : end + 1;
      }
    }
  }

  void checkForm() {
    require(desk_.form.enabled(), "the control is disabled");
    require(desk_.screen.cursor() == Cursor::normal, "the cursor says wait");
    require(!desk_.form.txtEdycjaSuma.visible(), "the totals' editor is open");
  }

  TestControl& desk_;
  const Trust& trust_;
  std::vector<std::string> broken_;
};

}  // namespace

std::vector<std::string> brokenRules(TestControl& desk, const Trust& trust) {
  if (!trust.tables) return {};
  return Inspection(desk, trust).run();
}

void lowerTrust(const TestControl& desk, Trust& trust) {
  const Table& packages = desk.form.grdOpakowania;
  std::set<std::string> seen;
  for (int row = 1; row < packages.rows(); ++row) {
    const std::string& description = packages.cell(row, GRD_OPAK_DESC);
    if (!seen.insert(description).second) trust.tree = false;
    if (description.find_first_of("$@") != description.npos) trust.references = false;
  }
}

}  // namespace awizo::test
