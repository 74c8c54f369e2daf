#include "assistants/packages_dialog.h"

#include <QVBoxLayout>

#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"

namespace awizo::desktop {

void layOut(PackagesDialog& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  auto* holder = new QWidget;
  Fields fields(faces, holder);
  fields.grid()->setContentsMargins(0, 0, 0, 0);
  int row = 0;
  const auto add = [&](const auto& control) {
    fields.add(row++, 0, fromText(control.caption()), control);
  };
  add(form.txtCount);
  add(form.cboType);
  add(form.txtDescription);
  add(form.cboParent);
  for (const TextField* field :
       {&form.txtWeight, &form.txtLength, &form.txtWidth, &form.txtHeight, &form.txtPlace}) {
    add(*field);
  }
  faces.widget(form.txtDescription)->setMinimumWidth(dialog.fontMetrics().averageCharWidth() * 40);
  rows->addWidget(holder);
  addNotes(*rows, faces, {&form.lblExample, &form.lblNumbers, &form.lblRefusal});
  rows->addStretch(1);
  rows->addLayout(makeButtonRow(faces, form.btnAdd, form.btnClose));
}

}  // namespace awizo::desktop
