#include "assistants/packages_dialog.h"

#include <QVBoxLayout>

#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"

namespace awizo::desktop {

void layOut(PackagesDialog& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  keepRoom(*faces.widget(form.txtDescription), 40);
  rows->addWidget(makeColumn(faces, form.txtCount, form.cboType, form.txtDescription,
                             form.cboParent, form.txtWeight, form.txtLength, form.txtWidth,
                             form.txtHeight, form.txtPlace));
  addNotes(*rows, faces, {&form.lblExample, &form.lblNumbers, &form.lblRefusal});
  rows->addStretch(1);
  rows->addLayout(makeButtonRow(faces, form.btnAdd, form.btnClose));
}

}  // namespace awizo::desktop
