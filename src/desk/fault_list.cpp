#include "desk/fault_list.h"

#include <algorithm>
#include <utility>

namespace awizo {

FaultList::FaultList(Screen& screen)
    : Form(screen, "FaultList"),
      grdFaults(*this, "grdFaults", 2),
      btnGo(*this, "btnGo", "&Перейти"),
      btnClose(*this, "btnClose", "&Закрыть") {
  onActivate = [this] { grdFaults.setFocus(); };
  acceptButton = &btnGo;
  closeButton = &btnClose;
  grdFaults.selectsRows = true;
  grdFaults.setColumnWidth(0, 5000);
  grdFaults.setColumnWidth(1, 7000);
  grdFaults.setCell(0, 0, "Где");
  grdFaults.setCell(0, 1, "Что не так");
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
  grdFaults.setCell(1, 0, "");
  grdFaults.setCell(1, 1, "замечаний нет");
  int row = 0;
  for (const DocumentFault& fault : faults_) {
    grdFaults.setCell(++row, 0, fault.where);
    grdFaults.setCell(row, 1, fault.what);
  }
  grdFaults.setRow(1);
  grdFaults.setColumn(0);
  grdFaults.setTopRow(1);
}

void FaultList::btnGo_Click() {
  if (faults_.empty()) return;
  chosen_ = faults_[static_cast<std::size_t>(grdFaults.row() - 1)];
  hide();
}

}  // namespace awizo
