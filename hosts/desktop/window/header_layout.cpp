#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/layouts/fields.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "hosts/desktop/window/main_layout.h"

namespace awizo::desktop {
namespace {

/// One group of fields under its heading.
struct Group {
  QWidget* widget;
  QGridLayout* grid;
};

Group makeHeaderGroup(std::string_view heading) {
  auto* widget = new QWidget;
  auto* rows = new QVBoxLayout(widget);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(4);
  auto* label = new QLabel(fromText(heading));
  makeBold(*label);
  rows->addWidget(label);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(2);
  rows->addLayout(grid);
  rows->addStretch(1);
  return {widget, grid};
}

QWidget* makeLine(QFrame::Shape shape) {
  auto* line = new QFrame;
  line->setFrameShape(shape);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

/// Adds a field under its own caption; `row` counts fields.
template <class Field>
void add(QGridLayout* grid, FormFace& faces, const Field& field, int row, int column,
         int columns = 1) {
  auto* words = new QLabel(fromText(field.caption()));
  words->setTextFormat(Qt::PlainText);
  if (row > 0) words->setContentsMargins(0, 4, 0, 0);
  grid->addWidget(words, 2 * row, column, 1, columns);
  grid->addWidget(faces.widget(field), 2 * row + 1, column, 1, columns);
  nameBy(*words, faces.face(field));
}

QWidget* makeDocument(AwizoForm& form, FormFace& faces) {
  const auto [group, grid] = makeHeaderGroup(words::documentGroup);
  add(grid, faces, form.txtNrAwiza, 0, 0, 2);
  add(grid, faces, form.txtDataAwiza, 1, 0);
  add(grid, faces, form.txtDespatchAdviceTime, 1, 1);
  return group;
}

QWidget* makeOrder(AwizoForm& form, FormFace& faces) {
  const auto [group, grid] = makeHeaderGroup(words::orderGroup);
  add(grid, faces, form.txtNrZam, 0, 0);
  add(grid, faces, form.dpDataZam, 0, 1);
  add(grid, faces, form.txtCodeByBuyer, 1, 0, 2);
  return group;
}

QWidget* makeDelivery(AwizoForm& form, FormFace& faces) {
  const auto [group, grid] = makeHeaderGroup(words::deliveryGroup);
  add(grid, faces, form.txtEstimatedDeliveryDate, 0, 0);
  add(grid, faces, form.txtEstimatedDeliveryTime, 0, 1);
  add(grid, faces, form.cboxPackageDescription, 1, 0);
  add(grid, faces, form.txtGoodsIdentity, 1, 1);
  return group;
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
  // Qt has no paler colour of this role for a disabled form: it would be too prominent there.
  QPalette colours;
  colours.setColor(QPalette::Disabled, QPalette::PlaceholderText,
                   label->palette().color(QPalette::Disabled, QPalette::WindowText));
  label->setPalette(colours);
  return label;
}

QWidget* makeParties(AwizoForm& form, FormFace& faces) {
  auto* parties = new Wrapped;
  auto* grid = new QGridLayout(parties);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(3);
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
  grid->addWidget(value(faces, form.lblNazwaMiejscaDostawy), 1, 4);
  grid->addWidget(value(faces, form.lblAdresMiejscaDostawy), 1, 5, 1, 2);
  grid->setColumnStretch(2, 2);
  grid->setColumnStretch(4, 1);
  grid->setColumnStretch(6, 2);
  const int ilnWidth = parties->fontMetrics().horizontalAdvance('0') * 14;
  for (const Label* iln :
       {&form.lblILNSprzedWart, &form.lblILNKupWart, &form.lblILNMiejscaDostValue}) {
    faces.widget(*iln)->setMinimumWidth(ilnWidth);
  }
  // Texts that need no second line have their height from the start: the window is painted once.
  parties->takeHeight();
  return parties;
}

}  // namespace

QWidget* makeHeader(AwizoForm& form, FormFace& faces) {
  QWidget* frame = faces.widget(form.frmDaneNaglowka);
  auto* groups = new QHBoxLayout;
  groups->setSpacing(10);
  groups->addWidget(makeDocument(form, faces), 3);
  groups->addWidget(makeLine(QFrame::VLine));
  groups->addWidget(makeOrder(form, faces), 2);
  groups->addWidget(makeLine(QFrame::VLine));
  groups->addWidget(makeDelivery(form, faces), 3);
  auto* rows = new QVBoxLayout(frame);
  rows->setContentsMargins(insideFrame);
  rows->setSpacing(6);
  rows->addLayout(groups);
  rows->addWidget(makeLine(QFrame::HLine));
  rows->addWidget(makeParties(form, faces));
  frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return frame;
}

}  // namespace awizo::desktop
