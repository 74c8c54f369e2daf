#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/command_actions.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"
#include "linedialog/dlg_iso_codes.h"
#include "linedialog/dlgdodaj_pule.h"

namespace awizo::desktop {

void layOut(DlgdodajPule& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(12);
  auto* holder = new QWidget;
  Fields fields(faces, holder);
  fields.grid()->setContentsMargins(0, 0, 0, 0);
  fields.add(0, 0, form.Label2, form.cboxPackages);
  QHBoxLayout* quantity = makeRow({faces.widget(form.txtQuantity), faces.widget(form.UpDown1)});
  quantity->setSpacing(0);
  fields.add(1, 0, form.Label1, quantity);
  nameBy(faces.label(form.Label1), faces.face(form.txtQuantity));
  faces.widget(form.cboxPackages)->setMinimumWidth(dialog.fontMetrics().averageCharWidth() * 45);
  rows->addWidget(holder);
  rows->addStretch(1);
  rows->addLayout(makeButtonRow(faces, form.btnDodaj, form.btnZamknij));
}

void layOut(DlgIsoCodes& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  TableFace& table = faces.table(form.grdISO);
  table.stretchColumn(0);
  table.moveAsInList(0);
  table.view()->setAccessibleName(fromText(words::countriesTable));
  new CommandActions(countryListCommands(form), faces, dialog);
  keepRoom(*table.view(), 52, 22);
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  rows->addWidget(table.widget(), 1);
  rows->addLayout(makeButtonRow(faces, form.btnAccept, form.btnCancel));
}

}  // namespace awizo::desktop
