#include "assistants/distribution_dialog.h"

#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"

namespace awizo::desktop {

void layOut(DistributionDialog& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  TableFace& table = faces.table(form.grdParts);
  table.stretchColumn(DistributionDialog::packageColumn);
  table.view()->setAccessibleName(fromText(words::partsTable));
  keepRoom(*table.view(), 90, 14);
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  rows->addWidget(makeColumn(faces, form.cboLines, form.cboPackages, form.cboSpread, form.txtEach));
  rows->addWidget(table.widget(), 1);
  addNotes(*rows, faces, {&form.lblSummary});
  rows->addLayout(makeButtonRow(faces, form.btnDo, form.btnClose));
}

}  // namespace awizo::desktop
