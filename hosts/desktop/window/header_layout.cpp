#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "hosts/desktop/window/main_layout.h"

namespace awizo::desktop {
namespace {

QGroupBox* makeBox(const QString& heading) {
  auto* box = new QGroupBox(heading);
  box->setFlat(true);
  return box;
}

/// Adds a field under its own caption.
template <class Field>
void add(QGridLayout* grid, FormFace& faces, const Field& field, int row, int column,
         int columns = 1) {
  grid->addLayout(captioned(fromText(field.caption()), faces.widget(field)), row, column, 1,
                  columns);
}

QGridLayout* makeGrid(QWidget* parent) {
  auto* grid = new QGridLayout(parent);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  return grid;
}

QWidget* makeDocument(AwizoForm& form, FormFace& faces) {
  QGroupBox* box = makeBox("Документ");
  QGridLayout* grid = makeGrid(box);
  add(grid, faces, form.txtNrAwiza, 0, 0, 2);
  add(grid, faces, form.txtDataAwiza, 1, 0);
  add(grid, faces, form.txtDespatchAdviceTime, 1, 1);
  return box;
}

QWidget* makeOrder(AwizoForm& form, FormFace& faces) {
  QGroupBox* box = makeBox("Заказ");
  QGridLayout* grid = makeGrid(box);
  add(grid, faces, form.txtNrZam, 0, 0);
  add(grid, faces, form.dpDataZam, 0, 1);
  add(grid, faces, form.txtCodeByBuyer, 1, 0, 2);
  return box;
}

QWidget* makeDelivery(AwizoForm& form, FormFace& faces) {
  QGroupBox* box = makeBox("Доставка");
  QGridLayout* grid = makeGrid(box);
  add(grid, faces, form.txtEstimatedDeliveryDate, 0, 0);
  add(grid, faces, form.txtEstimatedDeliveryTime, 0, 1);
  add(grid, faces, form.cboxPackageDescription, 1, 0);
  add(grid, faces, form.txtGoodsIdentity, 1, 1);
  return box;
}

/// A long name takes a second line rather than the window's width.
QWidget* value(FormFace& faces, const Label& label) {
  auto* text = static_cast<QLabel*>(faces.widget(label));
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setFocusPolicy(Qt::NoFocus);
  return text;
}

QLabel* caption(const std::string& text) {
  auto* label = new QLabel(fromText(text));
  label->setTextFormat(Qt::PlainText);
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

QWidget* makeParties(AwizoForm& form, FormFace& faces) {
  QGroupBox* box = makeBox("Стороны");
  QGridLayout* grid = makeGrid(box);
  const auto addParty = [&](int row, const Label& iln, const Label& name) {
    grid->addWidget(caption(iln.heading()), row, 0);
    grid->addWidget(value(faces, iln), row, 1);
    grid->addWidget(value(faces, name), row, 2);
  };
  addParty(0, form.lblILNSprzedWart, form.lblNameSprzedWart);
  addParty(1, form.lblILNKupWart, form.lblNameKupWart);
  grid->addWidget(caption(form.lblILNMiejscaDostValue.heading()), 0, 3);
  grid->addWidget(value(faces, form.lblILNMiejscaDostValue), 0, 4);
  grid->addWidget(caption(form.lblNazwaMiejscaDostWart.heading()), 0, 5);
  grid->addWidget(value(faces, form.lblNazwaMiejscaDostWart), 0, 6);
  grid->addWidget(caption(form.lblAdresMiejscaDostawy.heading()), 1, 3);
  auto* address = new QHBoxLayout;
  address->addWidget(value(faces, form.lblAdresMiejscaDostawy));
  address->addWidget(value(faces, form.lblNazwaMiejscaDostawy), 1);
  grid->addLayout(address, 1, 4, 1, 3);
  grid->setColumnStretch(2, 3);
  grid->setColumnStretch(6, 3);
  const int ilnWidth = box->fontMetrics().horizontalAdvance('0') * 14;
  grid->setColumnMinimumWidth(1, ilnWidth);
  grid->setColumnMinimumWidth(4, ilnWidth);
  return box;
}

}  // namespace

QWidget* makeHeader(AwizoForm& form, FormFace& faces) {
  QWidget* frame = faces.widget(form.frmDaneNaglowka);
  auto* fields = new QHBoxLayout;
  fields->setSpacing(16);
  fields->addWidget(makeDocument(form, faces), 3);
  fields->addWidget(makeOrder(form, faces), 2);
  fields->addWidget(makeDelivery(form, faces), 3);
  auto* rows = new QVBoxLayout(frame);
  rows->setSpacing(2);
  rows->addLayout(fields);
  rows->addWidget(makeParties(form, faces));
  frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  return frame;
}

}  // namespace awizo::desktop
