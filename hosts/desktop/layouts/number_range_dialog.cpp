#include "desk/number_range_dialog.h"

#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"

namespace awizo::desktop {

void layOut(NumberRangeDialog& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  keepRoom(*faces.widget(form.txtPrefix), 30);
  rows->addWidget(makeColumn(faces, form.txtExtension, form.txtPrefix, form.txtFirst, form.txtLast,
                             form.txtNext));
  addNotes(*rows, faces, {&form.lblPlace, &form.lblExample, &form.lblLeft, &form.lblDoubt});
  auto* part = makeGroup(words::partGroup);
  auto* fields = new QVBoxLayout(part);
  fields->addWidget(makeColumn(faces, form.txtPartCount, form.txtPartPlace));
  fields->addWidget(faces.widget(form.btnHandOut), 0, Qt::AlignLeft);
  rows->addWidget(part);
  rows->addStretch(1);
  rows->addLayout(makeButtonRow(faces, form.btnSave, form.btnClose));
}

}  // namespace awizo::desktop
