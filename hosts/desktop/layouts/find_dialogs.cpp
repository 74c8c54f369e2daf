#include <QVBoxLayout>

#include "desk/fault_list.h"
#include "desk/find_dialog.h"
#include "desk/layout_words.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"

namespace awizo::desktop {

void layOut(FaultList& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  TableFace& table = faces.table(form.grdFaults);
  table.stretchColumn(1);
  table.view()->setAccessibleName(fromText(words::faultsTable));
  keepRoom(*table.view(), 90, 16);
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  rows->addWidget(table.widget(), 1);
  rows->addLayout(makeButtonRow(faces, form.btnGo, form.btnClose));
}

void layOut(FindDialog& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  auto* holder = new QWidget;
  Fields fields(faces, holder);
  fields.grid()->setContentsMargins(0, 0, 0, 0);
  fields.add(0, 0, fromText(words::whatToFind), form.txtWhat);
  fields.grid()->addWidget(faces.widget(form.lblNothing), 1, 1);
  keepRoom(*faces.widget(form.txtWhat), 30);
  rows->addWidget(holder);
  rows->addStretch(1);
  rows->addLayout(makeButtonRow(faces, form.btnFind, form.btnClose));
}

}  // namespace awizo::desktop
