#include "tables/upper/editing/package_subtree.h"

#include <algorithm>
#include <deque>
#include <limits>
#include <string_view>
#include <unordered_map>

#include "platform/narrow.h"
#include "tables/clear_tables.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

namespace awizo {
namespace {

/// The longest chain of packages that lie in one another without running in a circle. It may begin
/// with one package more than are counted: a file brings rows that nobody counts.
std::size_t longestChain(const SessionState& session, std::int16_t firstRow) {
  const std::int16_t count = session.IloscPozycjiOpak;
  const bool isCounted = firstRow >= 1 && firstRow <= count;
  return static_cast<std::size_t>(count) + (isCounted ? 0 : 1);
}

/// Every scan goes into the log, row by row. `room`: how many packages the chain may still take.
void scanAllRows(Editor& editor, std::int16_t row, std::vector<std::string>& delSerials,
                 std::size_t room) {
  if (room == 0) throw errors::outOfStackSpace();
  DebugLog& log = editor.session.log;
  const std::string currSerial = packageRow(editor, row).cell(GRD_OPAK_SERIAL);
  delSerials.push_back(currSerial);
  log.trace("GetPackagesRec: currSerial = ", currSerial);
  for (std::int16_t i = 1; i <= editor.session.IloscPozycjiOpak; ++i) {
    const std::string parent = packageRow(editor, i).cell(GRD_OPAK_PARENT_SERIAL);
    log.trace("GetPackagesRec: GRD_OPAK_PARENT_SERIAL[", i, "] = ", parent);
    editor.form.grdOpakowania.setRow(i);
    if (parent == currSerial) scanAllRows(editor, i, delSerials, room - 1);
  }
}

/// Rows of the packages by their parent's serial, in table order.
using ChildRows = std::unordered_map<std::string, std::vector<std::int16_t>>;

ChildRows childRows(const Editor& editor) {
  ChildRows rows;
  for (std::int16_t i = 1; i <= editor.session.IloscPozycjiOpak; ++i) {
    rows[packageRow(editor, i).cell(GRD_OPAK_PARENT_SERIAL)].push_back(i);
  }
  return rows;
}

/// Finds what scanAllRows finds, without its scans. An error leaves the same row current.
void followChildren(Editor& editor, const ChildRows& children, std::int16_t row,
                    std::vector<std::string>& delSerials, std::size_t room) {
  if (room == 0) {
    editor.form.grdOpakowania.setRow(row);
    throw errors::outOfStackSpace();
  }
  const std::string& serial = packageRow(editor, row).cell(GRD_OPAK_SERIAL);
  delSerials.push_back(serial);
  const auto found = children.find(serial);
  if (found == children.end()) return;
  for (const std::int16_t child : found->second) {
    followChildren(editor, children, child, delSerials, room - 1);
  }
}

/// The last row whose every used cell the 16-bit index reaches.
constexpr int lastWholeRow =
    (std::numeric_limits<std::int16_t>::max() - GRD_OPAK_SERIAL) / packageColumnCount;

/// Whether the table holds as many packages as are counted, and each can be read: not so after a
/// file was read, which brings rows without counting them, or past the limit of the index. Then an
/// error may end the work half-way, so every step is done one by one.
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
    editor.session.log.trace("Usun opak - wyczysc grd");
  }
}

void removeFirstRowOf(Editor& editor, const std::string& serial) {
  for (std::int16_t row = 1; row <= editor.session.IloscPozycjiOpak; ++row) {
    if (packageRow(editor, row).cell(GRD_OPAK_SERIAL) != serial) continue;
    removePackageRow(editor, row);
    return;
  }
}

/// The rows to remove, in order: for each serial the first row that has it and isn't removed yet. A
/// file may have brought several rows of one serial.
std::vector<int> rowsInTurn(const Editor& editor, const std::vector<std::string>& delSerials) {
  std::unordered_map<std::string_view, std::deque<int>> rowsBySerial;
  for (std::int16_t row = 1; row <= editor.session.IloscPozycjiOpak; ++row) {
    rowsBySerial[packageRow(editor, row).cell(GRD_OPAK_SERIAL)].push_back(row);
  }
  std::vector<int> rows;
  for (const std::string& serial : delSerials) {
    const auto found = rowsBySerial.find(serial);
    if (found == rowsBySerial.end() || found->second.empty()) continue;
    rows.push_back(found->second.front());
    found->second.pop_front();
  }
  return rows;
}

/// One pass over the table instead of one for each serial. The last row is removed by itself: if no
/// other package is left, it is emptied instead.
void removeInOnePass(Editor& editor, const std::vector<std::string>& delSerials) {
  std::vector<int> rows = rowsInTurn(editor, delSerials);
  if (rows.empty()) return;
  const int last = rows.back();
  rows.pop_back();
  std::sort(rows.begin(), rows.end());
  const auto above = std::lower_bound(rows.begin(), rows.end(), last) - rows.begin();
  editor.form.grdOpakowania.removeItems(rows);
  std::int16_t& count = editor.session.IloscPozycjiOpak;
  count = narrow16(count - static_cast<std::int64_t>(rows.size()));
  removePackageRow(editor, narrow16(last - above));
}

}  // namespace

void GetPackagesRec(Editor& editor, std::int16_t row, std::vector<std::string>& delSerials) {
  if (editor.session.log.writes(4) || !holdsWhatIsCounted(editor)) {
    scanAllRows(editor, row, delSerials, longestChain(editor.session, row));
    return;
  }
  followChildren(editor, childRows(editor), row, delSerials, longestChain(editor.session, row));
  editor.form.grdOpakowania.setRow(editor.session.IloscPozycjiOpak);
}

void removePackageRows(Editor& editor, const std::vector<std::string>& delSerials) {
  DebugLog& log = editor.session.log;
  if (!log.writes(4) && holdsWhatIsCounted(editor)) {
    removeInOnePass(editor, delSerials);
    return;
  }
  for (std::size_t i = 0; i < delSerials.size(); ++i) {
    log.trace("delSerials[", i + 1, "] = ", delSerials[i]);
    removeFirstRowOf(editor, delSerials[i]);
  }
}

}  // namespace awizo
