#include "desk/fault_list.h"

#include <algorithm>
#include <array>
#include <utility>

#include "tables/columns/column.h"

namespace awizo {
namespace {

constexpr int whereColumn = 0;
constexpr int whatColumn = 1;
constexpr std::array faultColumns{
    Column{whereColumn, "Где", 5000},
    Column{whatColumn, "Что не так", 7000},
};
static_assert(areInOrder(faultColumns));

}  // namespace

FaultList::FaultList(Screen& screen)
    : Form(screen, "FaultList"),
      grdFaults(*this, "grdFaults", static_cast<int>(faultColumns.size())),
      btnGo(*this, "btnGo", "&Перейти"),
      btnClose(*this, "btnClose", "&Закрыть") {
  onActivate = [this] { grdFaults.setFocus(); };
  acceptButton = &btnGo;
  closeButton = &btnClose;
  grdFaults.selectsRows = true;
  setUpColumns(grdFaults, faultColumns);
  for (const Column& column : faultColumns) grdFaults.setCell(0, column.number, column.heading);
  grdFaults.onDoubleClick = [this] { btnGo_Click(); };
  btnGo.onClick = [this] { btnGo_Click(); };
  btnClose.onClick = [this] { hide(); };
}

std::optional<DocumentFault> FaultList::choose(std::vector<DocumentFault> faults) {
  faults_ = std::move(faults);
  chosen_.reset();
  fill();
  showModal();
  return chosen_;
}

void FaultList::fill() {
  const int count = static_cast<int>(faults_.size());
  setCaption(count == 0 ? "Замечаний нет" : "Что не так: " + std::to_string(count));
  btnGo.setEnabled(count > 0);
  grdFaults.setRows(std::max(2, count + 1));
  grdFaults.setCell(1, whereColumn, "");
  grdFaults.setCell(1, whatColumn, "замечаний нет");
  int row = 0;
  for (const DocumentFault& fault : faults_) {
    grdFaults.setCell(++row, whereColumn, fault.where);
    grdFaults.setCell(row, whatColumn, fault.what);
  }
  grdFaults.setRow(1);
  grdFaults.setColumn(whereColumn);
  grdFaults.setTopRow(1);
}

void FaultList::btnGo_Click() {
  if (faults_.empty()) return;
  chosen_ = faults_[static_cast<std::size_t>(grdFaults.row() - 1)];
  hide();
}

}  // namespace awizo
