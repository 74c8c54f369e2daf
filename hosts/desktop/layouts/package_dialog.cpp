#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"
#include "packagedialog/dlg_szczegoly.h"

namespace awizo::desktop {
namespace {

QGroupBox* makePackage(DlgSzczegoly& form, FormFace& faces) {
  QGroupBox* group = makeGroup(words::packageGroup);
  Fields fields(faces, group);
  const auto caption = [](const auto& control) { return fromText(control.caption()); };
  fields.add(0, 0, caption(form.cboxPackageType), form.cboxPackageType);
  fields.add(1, 0, caption(form.txtPackageDesc), form.txtPackageDesc);
  fields.add(2, 0, caption(form.cboxParentPackage), form.cboxParentPackage);
  fields.add(3, 0, fromText(form.lblLevelValue.heading()), form.lblLevelValue);
  fields.add(4, 0, fromText(form.lblIDLowValue.heading()), form.lblIDLowValue);
  fields.grid()->addWidget(faces.widget(form.lbIDValue), 4, 1);
  return group;
}

QGroupBox* makeMeasures(DlgSzczegoly& form, FormFace& faces) {
  QGroupBox* group = makeGroup(words::sizesGroup);
  Fields fields(faces, group);
  int row = 0;
  for (const TextField* field :
       {&form.txtPackageWeight, &form.txtPackageLength, &form.txtPackageWidth,
        &form.txtPackageHeight, &form.txtSerialNumberN}) {
    fields.add(row++, 0, fromText(field->caption()), *field);
  }
  return group;
}

QGroupBox* makeDelivery(DlgSzczegoly& form, FormFace& faces) {
  QGroupBox* group = makeGroup(words::packageDeliveryGroup);
  Fields fields(faces, group);
  fields.add(0, 0, fromText(form.cboxILNLokalizacji.caption()), form.cboxILNLokalizacji);
  fields.add(1, 0, fromText(form.cboxLokalizacja.caption()), form.cboxLokalizacja);
  return group;
}

/// Makes the captions of several groups equally wide, so that all fields are aligned.
void alignCaptions(std::initializer_list<QGroupBox*> groups) {
  int width = 0;
  for (QGroupBox* group : groups) {
    for (const QLabel* label : group->findChildren<QLabel*>()) {
      if (label->objectName().isEmpty()) width = std::max(width, label->sizeHint().width());
    }
  }
  for (QGroupBox* group : groups) {
    static_cast<QGridLayout*>(group->layout())->setColumnMinimumWidth(0, width);
  }
}

}  // namespace

void layOut(DlgSzczegoly& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  QGroupBox* package = makePackage(form, faces);
  QGroupBox* measures = makeMeasures(form, faces);
  QGroupBox* delivery = makeDelivery(form, faces);
  alignCaptions({package, measures, delivery});
  keepRoom(*faces.widget(form.txtPackageDesc), 42);
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  rows->addWidget(package);
  rows->addWidget(measures);
  rows->addWidget(delivery);
  rows->addStretch(1);
  rows->addLayout(makeButtonRow(faces, form.btnDodaj, form.btnZamknij));
}

}  // namespace awizo::desktop
