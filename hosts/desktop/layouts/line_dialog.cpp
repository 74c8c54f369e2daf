#include <QAbstractButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/command_actions.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"
#include "hosts/desktop/layouts/flowing_groups.h"
#include "linedialog/dlg_dodaj.h"

namespace awizo::desktop {
namespace {

/// A box that is as high as its content needs at its width.
QGroupBox* makeFlowingGroup(std::string_view heading) {
  QGroupBox* group = makeGroup(heading);
  group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  return group;
}

QGroupBox* makeProduct(DlgDodaj& form, FormFace& faces) {
  QGroupBox* group = makeFlowingGroup(words::productGroup);
  Fields name(faces, new QWidget);
  name.addCovered(0, 0, form.lblNazwaProd, form.txtNazwaProdWart, form.cboxNazwaProd);
  Fields own(faces, new QWidget);
  own.addCovered(0, 0, form.lblEANProd, form.txtlEANProdWart, form.cboxEANProd);
  own.addCovered(1, 0, form.lblKodSprzed, form.txtKodSprzed, form.cboxKodSprzed);
  Fields others(faces, new QWidget);
  others.addCovered(0, 0, form.lblKodKup, form.txtKodKup, form.cboxKodAPP);
  others.add(1, 0, form.lblJednostkaMiary, form.cboxJednostkaMiary);
  // The fields below each other are aligned.
  int captions = 0;
  for (const Label* label : {&form.lblNazwaProd, &form.lblEANProd, &form.lblKodSprzed}) {
    captions = std::max(captions, faces.widget(*label)->sizeHint().width());
  }
  for (const Fields& fields : {name, own, others}) fields.grid()->setContentsMargins(0, 0, 0, 0);
  for (const Fields& fields : {name, own}) fields.grid()->setColumnMinimumWidth(0, captions);
  auto* codes = new FlowingGroups;
  codes->setSpacing(20);
  codes->addGroup(own.grid()->parentWidget(), 1);
  codes->addGroup(others.grid()->parentWidget(), 1);
  auto* rows = new QVBoxLayout(group);
  rows->setSpacing(6);
  rows->addWidget(name.grid()->parentWidget());
  rows->addLayout(codes);
  return group;
}

QGroupBox* makeAmounts(DlgDodaj& form, FormFace& faces) {
  QGroupBox* group = makeFlowingGroup(words::quantityGroup);
  Fields fields(faces, group);
  fields.add(0, 0, form.lblIloscZam, form.txtIloscZam);
  fields.add(1, 0, form.lblIloscPotw, form.txtIloscPotw);
  fields.add(2, 0, form.lblCenaNetto, form.txtCenaNetto);
  fields.add(3, 0, form.Label7, form.txtAmount);
  fields.add(4, 0, form.Label8, form.cboxStawkaVAT);
  fields.add(5, 0, form.Label10, form.cboxKodVAT);
  fields.grid()->setRowStretch(6, 1);
  return group;
}

QGroupBox* makeOrigin(DlgDodaj& form, FormFace& faces) {
  QGroupBox* group = makeFlowingGroup(words::datesGroup);
  Fields fields(faces, group);
  fields.add(0, 0, form.Label5, form.dtProdDate);
  fields.add(1, 0, form.lblExpiryDate, form.dtExpiryDate);
  QHBoxLayout* country = makeRow({faces.widget(form.comboCountry), faces.widget(form.btnISOcodes)});
  country->setStretch(0, 1);
  fields.add(2, 0, form.lblContryOfOryginCode, country);
  nameBy(faces.label(form.lblContryOfOryginCode), faces.face(form.comboCountry));
  auto* customsNumber = new FlowingGroups;
  customsNumber->setSpacing(6);
  for (const auto& halves : {std::pair<const Control*, const Control*>{&form.txtCDN1, &form.dpCDN2},
                             {&form.txtCDN3, &form.txtCDN4}}) {
    auto* half = new QWidget;
    half->setLayout(makeRow({faces.widget(*halves.first), faces.widget(*halves.second)}));
    half->layout()->setContentsMargins(0, 0, 0, 0);
    customsNumber->addGroup(half, 1);
  }
  for (const auto& [field, digits] :
       {std::pair{&form.txtCDN1, 8}, std::pair{&form.txtCDN3, 7}, std::pair{&form.txtCDN4, 3}}) {
    QWidget* widget = faces.widget(*field);
    widget->setMinimumWidth(widget->fontMetrics().horizontalAdvance('0') * (digits + 2));
  }
  fields.add(3, 0, form.Label9, customsNumber);
  for (const auto& [field, words] :
       {std::pair<const Control*, std::string_view>{&form.txtCDN1, words::customsNumber},
        {&form.dpCDN2, words::customsDate},
        {&form.txtCDN3, words::customsSerial},
        {&form.txtCDN4, words::customsItem}}) {
    faces.face(*field).focusWidget()->setAccessibleName(fromText(words));
  }
  fields.grid()->setRowStretch(4, 1);
  return group;
}

QGroupBox* makePackages(DlgDodaj& form, FormFace& faces) {
  QGroupBox* group = makeGroup("");
  group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  auto* rows = new QGridLayout(group);
  QWidget* heading = faces.widget(form.Label4);
  makeBold(*heading);
  QHBoxLayout* head = makeRow({heading});
  head->addStretch(1);
  head->addWidget(faces.widget(form.lblPackedQuantity));
  head->addWidget(faces.widget(form.lblPackedQuantityValue));
  rows->addLayout(head, 0, 0);
  rows->addWidget(faces.widget(form.grdPozycje), 1, 0);
  rows->addWidget(faces.widget(form.grdPozycjeN), 1, 0);
  TableFace& table = faces.table(form.grdPozycje);
  table.view()->setMinimumHeight(table.view()->fontMetrics().height() * 7);
  table.stretchColumn(2);
  table.view()->setAccessibleName(fromText(words::linePackagesTable));
  faces.widget(form.grdPozycjeN)->setAccessibleName(fromText(words::linePackagesTable));
  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(4);
  for (const Button* command : {&form.Command1, &form.Command2, &form.Command3}) {
    faces.widget(*command)->setMaximumWidth(48);
    buttons->addWidget(faces.widget(*command));
  }
  buttons->addStretch(1);
  rows->addLayout(buttons, 1, 1);
  return group;
}

}  // namespace

void layOut(DlgDodaj& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  QWidget* heading = faces.widget(form.lblPozycjaTow);
  QFont large = heading->font();
  large.setPointSizeF(large.pointSizeF() * 1.3);
  large.setBold(true);
  heading->setFont(large);
  static_cast<QAbstractButton*>(faces.widget(form.btnISOcodes))->setIconSize({16, 16});

  auto* middle = new FlowingGroups;
  middle->setSpacing(10);
  middle->addGroup(makeAmounts(form, faces), 2);
  middle->addGroup(makeOrigin(form, faces), 3);

  new CommandActions(lineDialogCommands(form), faces, dialog);
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  rows->addWidget(heading);
  rows->addWidget(makeProduct(form, faces));
  rows->addLayout(middle);
  rows->addWidget(makePackages(form, faces), 1);
  rows->addLayout(makeButtonRow(faces, form.btnDodaj, form.btnZamknij));
}

}  // namespace awizo::desktop
