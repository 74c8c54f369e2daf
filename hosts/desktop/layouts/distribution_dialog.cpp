#include "assistants/distribution_dialog.h"

#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"

namespace awizo::desktop {

void layOut(DistributionDialog& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  auto* holder = new QWidget;
  Fields fields(faces, holder);
  fields.grid()->setContentsMargins(0, 0, 0, 0);
  int line = 0;
  const auto add = [&](const auto& control) {
    fields.add(line++, 0, fromText(control.caption()), control);
  };
  add(form.cboLines);
  add(form.cboPackages);
  add(form.cboSpread);
  add(form.txtEach);
  TableFace& table = faces.table(form.grdParts);
  table.stretchColumn(DistributionDialog::packageColumn);
  table.view()->setAccessibleName(fromText(words::partsTable));
  const QFontMetrics metrics = dialog.fontMetrics();
  table.view()->setMinimumSize(metrics.averageCharWidth() * 90, metrics.height() * 14);
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  rows->addWidget(holder);
  rows->addWidget(table.widget(), 1);
  addNotes(*rows, faces, {&form.lblSummary});
  rows->addLayout(makeButtonRow(faces, form.btnDo, form.btnClose));
}

}  // namespace awizo::desktop
