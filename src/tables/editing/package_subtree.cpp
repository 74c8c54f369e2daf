#include "tables/editing/package_subtree.h"

#include <unordered_map>

#include "platform/narrow.h"
#include "tables/clear_tables.h"
#include "tables/columns.h"
#include "tables/flat_index.h"
#include "tables/package_references.h"

namespace awizo {
namespace {

const std::string& packageCell(const Editor& editor, std::int16_t row, std::int16_t column) {
  return editor.form.grdOpakowania.cell(IndexGrdOpak(editor, row, column));
}

// A chain of parents longer than there are packages runs in a circle.
bool isTooDeep(const Editor& editor, std::size_t depth) {
  return depth > static_cast<std::size_t>(editor.session.IloscPozycjiOpak);
}

void logParent(DebugLog& log, std::int16_t row, const std::string& parent) {
  if (!log.writes(4)) return;
  log.WriteDebugLine("GetPackagesRec: GRD_OPAK_PARENT_SERIAL[" + std::to_string(row) +
                     "] = " + parent);
}

// Every scan goes into the log, row by row.
void scanAllRows(Editor& editor, std::int16_t row, std::vector<std::string>& delSerials,
                 std::size_t depth) {
  if (isTooDeep(editor, depth)) throw errors::outOfStackSpace();
  DebugLog& log = editor.session.log;
  const std::string currSerial = packageCell(editor, row, GRD_OPAK_SERIAL);
  delSerials.push_back(currSerial);
  log.WriteDebugLine("GetPackagesRec: currSerial = " + currSerial);
  for (std::int16_t i = 1; i <= editor.session.IloscPozycjiOpak; ++i) {
    const std::string parent = packageCell(editor, i, GRD_OPAK_PARENT_SERIAL);
    logParent(log, i, parent);
    editor.form.grdOpakowania.setRow(i);
    if (parent == currSerial) scanAllRows(editor, i, delSerials, depth + 1);
  }
}

// Rows of the packages by their parent's serial, in table order.
using ChildRows = std::unordered_map<std::string, std::vector<std::int16_t>>;

ChildRows childRows(const Editor& editor) {
  ChildRows rows;
  for (std::int16_t i = 1; i <= editor.session.IloscPozycjiOpak; ++i) {
    rows[packageCell(editor, i, GRD_OPAK_PARENT_SERIAL)].push_back(i);
  }
  return rows;
}

// Finds what scanAllRows finds, without its scans. An error leaves the same row current.
void followChildren(Editor& editor, const ChildRows& children, std::int16_t row,
                    std::vector<std::string>& delSerials, std::size_t depth) {
  if (isTooDeep(editor, depth)) {
    editor.form.grdOpakowania.setRow(row);
    throw errors::outOfStackSpace();
  }
  const std::string& serial = packageCell(editor, row, GRD_OPAK_SERIAL);
  delSerials.push_back(serial);
  const auto found = children.find(serial);
  if (found == children.end()) return;
  for (const std::int16_t child : found->second) {
    followChildren(editor, children, child, delSerials, depth + 1);
  }
}

// The last row whose every used cell the 16-bit index reaches.
constexpr int lastWholeRow = 2183;

// Whether the table holds as many packages as are counted, and each can be read: not so after a
// file was read, which brings rows without counting them, or past the limit of the index. Then an
// error may end the work half-way, so every step is taken in its turn.
bool holdsWhatIsCounted(const Editor& editor) {
  const int count = editor.session.IloscPozycjiOpak;
  return count <= lastWholeRow && editor.form.grdOpakowania.rows() == count + 1;
}

void removePackageRow(Editor& editor, std::int16_t row) {
  std::int16_t& count = editor.session.IloscPozycjiOpak;
  if (count != 1) {
    count = narrow16(count - 1);
    editor.form.grdOpakowania.removeItem(row);
    editor.form.grdOpakowania.setRows(count + 1);
  } else {
    count = 0;
    ClearGrdOpakowania(editor);
    editor.session.log.WriteDebugLine("Usun opak - wyczysc grd");
  }
}

void removeFirstRowOf(Editor& editor, const std::string& serial) {
  for (std::int16_t row = 1; row <= editor.session.IloscPozycjiOpak; ++row) {
    if (packageCell(editor, row, GRD_OPAK_SERIAL) != serial) continue;
    removePackageRow(editor, row);
    return;
  }
}

std::vector<int> rowsOf(const Editor& editor, const SerialSet& serials) {
  std::vector<int> rows;
  for (std::int16_t row = 1; row <= editor.session.IloscPozycjiOpak; ++row) {
    if (serials.contains(packageCell(editor, row, GRD_OPAK_SERIAL))) rows.push_back(row);
  }
  return rows;
}

// One pass over the table instead of one for each serial. The last serial's turn comes by itself:
// where no other package is left, its row is emptied instead of removed.
void removeInOnePass(Editor& editor, const std::vector<std::string>& delSerials) {
  const SerialSet others({delSerials.begin(), delSerials.end() - 1});
  const std::vector<int> rows = rowsOf(editor, others);
  editor.form.grdOpakowania.removeItems(rows);
  std::int16_t& count = editor.session.IloscPozycjiOpak;
  count = narrow16(count - static_cast<std::int64_t>(rows.size()));
  removeFirstRowOf(editor, delSerials.back());
}

}  // namespace

void GetPackagesRec(Editor& editor, std::int16_t row, std::vector<std::string>& delSerials) {
  if (editor.session.log.writes(4) || !holdsWhatIsCounted(editor)) {
    scanAllRows(editor, row, delSerials, 1);
    return;
  }
  followChildren(editor, childRows(editor), row, delSerials, 1);
  editor.form.grdOpakowania.setRow(editor.session.IloscPozycjiOpak);
}

void removePackageRows(Editor& editor, const std::vector<std::string>& delSerials) {
  DebugLog& log = editor.session.log;
  if (!log.writes(4) && holdsWhatIsCounted(editor)) {
    removeInOnePass(editor, delSerials);
    return;
  }
  for (std::size_t i = 0; i < delSerials.size(); ++i) {
    log.WriteDebugLine("delSerials[" + std::to_string(i + 1) + "] = " + delSerials[i]);
    removeFirstRowOf(editor, delSerials[i]);
  }
}

}  // namespace awizo
