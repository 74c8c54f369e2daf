#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/layouts/fields.h"
#include "hosts/desktop/layouts/flowing_groups.h"
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

QWidget* makeLine() {
  auto* line = new QFrame;
  line->setFrameShape(QFrame::HLine);
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

QGridLayout* makeGrid(QWidget& parent) {
  auto* grid = new QGridLayout(&parent);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(3);
  // Both grids begin at the top, whichever is the higher.
  grid->setRowStretch(2, 1);
  return grid;
}

QWidget* makeSellerAndBuyer(AwizoForm& form, FormFace& faces) {
  auto* parties = new QWidget;
  QGridLayout* grid = makeGrid(*parties);
  const auto addParty = [&](int row, const Label& iln, const Label& name) {
    grid->addWidget(caption(iln.heading()), row, 0);
    grid->addWidget(value(faces, iln), row, 1);
    grid->addWidget(value(faces, name), row, 2);
  };
  addParty(0, form.lblILNSprzedWart, form.lblNameSprzedWart);
  addParty(1, form.lblILNKupWart, form.lblNameKupWart);
  grid->setColumnStretch(2, 1);
  // Rather than in a narrow column of words, the names stand above the place.
  grid->setColumnMinimumWidth(2, parties->fontMetrics().averageCharWidth() * 22);
  return parties;
}

QWidget* makePlace(AwizoForm& form, FormFace& faces) {
  auto* place = new QWidget;
  QGridLayout* grid = makeGrid(*place);
  grid->addWidget(caption(form.lblILNMiejscaDostValue.heading()), 0, 0);
  grid->addWidget(value(faces, form.lblILNMiejscaDostValue), 0, 1);
  grid->addWidget(caption(form.lblNazwaMiejscaDostWart.heading()), 0, 2);
  grid->addWidget(value(faces, form.lblNazwaMiejscaDostWart), 0, 3);
  grid->addWidget(caption(form.lblAdresMiejscaDostawy.heading()), 1, 0);
  grid->addWidget(value(faces, form.lblNazwaMiejscaDostawy), 1, 1);
  grid->addWidget(value(faces, form.lblAdresMiejscaDostawy), 1, 2, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 2);
  return place;
}

QLayout* makeFlow(int spacing, std::initializer_list<std::pair<QWidget*, int>> groups) {
  auto* flow = new FlowingGroups;
  flow->setSpacing(spacing);
  for (const auto& [group, stretch] : groups) flow->addGroup(group, stretch);
  return flow;
}

}  // namespace

QWidget* makeHeader(AwizoForm& form, FormFace& faces) {
  QWidget* frame = faces.widget(form.frmDaneNaglowka);
  const int ilnWidth = frame->fontMetrics().horizontalAdvance('0') * 14;
  for (const Label* iln :
       {&form.lblILNSprzedWart, &form.lblILNKupWart, &form.lblILNMiejscaDostValue}) {
    faces.widget(*iln)->setMinimumWidth(ilnWidth);
  }
  auto* whole = new Wrapped;
  auto* rows = new QVBoxLayout(whole);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(6);
  rows->addLayout(makeFlow(24, {{makeDocument(form, faces), 3},
                                {makeOrder(form, faces), 2},
                                {makeDelivery(form, faces), 3}}));
  rows->addWidget(makeLine());
  rows->addLayout(makeFlow(8, {{makeSellerAndBuyer(form, faces), 2}, {makePlace(form, faces), 3}}));
  // Where the window is wide enough it has its height from the start, and is painted once.
  whole->takeHeight(rows->sizeHint().width());
  auto* inside = new QVBoxLayout(frame);
  inside->setContentsMargins(insideFrame);
  inside->addWidget(whole);
  frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return frame;
}

}  // namespace awizo::desktop
