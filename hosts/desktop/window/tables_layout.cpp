#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <initializer_list>
#include <vector>

#include "desk/commands.h"
#include "desk/layout_words.h"
#include "desk/line_words.h"
#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/fields.h"
#include "hosts/desktop/layouts/flowing_groups.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "hosts/desktop/window/column_fill.h"
#include "hosts/desktop/window/main_layout.h"
#include "tables/columns/columns.h"

namespace awizo::desktop {
namespace {

/// The commands of a table's rows, one below the other at the table's side.
QLayout* makeRowButtons(FormFace& faces, const std::vector<Command>& commands) {
  auto* column = new QVBoxLayout;
  column->setSpacing(4);
  for (const Command& command : commands) {
    QWidget* widget = faces.widget(*command.button);
    const int side = widget->fontMetrics().height() + 14;
    widget->setFixedSize(side + 6, side);
    column->addWidget(widget);
  }
  column->addStretch(1);
  return column;
}

/// What is written over all lines: a value and the two ways of writing it.
QWidget* makeFillRow(FormFace& faces, QWidget* caption, std::initializer_list<QWidget*> value,
                     const Button& fillEmpty, const Button& fillAll) {
  auto* whole = new Wrapped;
  auto* row = new WrappingLayout(whole);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  row->addWidget(caption);
  for (QWidget* part : value) row->addWidget(part);
  row->addWidget(faces.widget(fillEmpty));
  row->addWidget(faces.widget(fillAll));
  return whole;
}

/// The table of totals, as high as its one row.
QWidget* makeSums(AwizoForm& form, FormFace& faces) {
  TableFace& table = faces.table(form.grdSuma);
  table.layOverCell(faces.face(form.txtEdycjaSuma));
  faces.widget(form.txtEdycjaSuma)->setAccessibleName(fromText(words::totalsTable));
  QTableView* view = table.view();
  view->setAccessibleName(fromText(words::totalsTable));
  view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const int rowHeight = view->fontMetrics().height() + 8;
  view->setFixedHeight(view->horizontalHeader()->sizeHint().height() + rowHeight +
                       2 * view->frameWidth());
  new ColumnFill(*view, 1);
  table.showNow();
  view->setMinimumWidth(view->horizontalHeader()->length() + 2 * view->frameWidth());
  return view;
}

/// Whether the weight is complete, and the currency.
QLayout* makeCurrency(AwizoForm& form, FormFace& faces) {
  auto* row = new QHBoxLayout;
  row->addWidget(faces.widget(form.lblNiepelnaWagaKom));
  row->addStretch(1);
  row->addWidget(new QLabel(fromText(form.lblCurrencyWart.heading())));
  row->addWidget(faces.widget(form.lblCurrencyWart));
  return row;
}

/// The document's ways in and out.
QLayout* makeWays(AwizoForm& form, FormFace& faces) {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addStretch(1);
  for (const Command& command : documentCommands(form)) {
    ButtonFace& button = faces.button(*command.button);
    button.setWords(fromText(command.plainWords()));
    static_cast<QToolButton*>(button.widget())->setAutoRaise(false);
    row->addWidget(button.widget());
  }
  return row;
}

/// Cut where it is too long, and whole in its tip.
QLabel* makeAddress() {
  auto* text = new QLabel;
  text->setObjectName("lblUploadUrl");
  text->setTextFormat(Qt::PlainText);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setFocusPolicy(Qt::NoFocus);
  text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  text->setMinimumWidth(text->fontMetrics().averageCharWidth() * 16);
  return text;
}

}  // namespace

QWidget* makeLines(Editor& editor, FormFace& faces, QWidget& strip) {
  AwizoForm& form = editor.form;
  QWidget* frame = faces.widget(form.frmPozycje);
  TableFace& table = faces.table(form.grdPozycje);
  table.layOverCell(faces.face(form.txtEdycja));
  faces.widget(form.txtEdycja)->setAccessibleName(fromText(words::quantityEditor));
  table.describeRows([&editor](int row) { return lineFaultWords(editor, row); });
  table.view()->setMinimumHeight(table.view()->fontMetrics().height() * 7);
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(insideFrame);
  grid->setSpacing(6);
  new ColumnFill(*table.view(), GRD_POZ_NAME);
  grid->addWidget(table.view(), 0, 0);
  grid->addLayout(makeRowButtons(faces, lineCommands(form)), 0, 1);
  grid->addWidget(&strip, 1, 0, 1, 2);
  auto* fillRows = new QVBoxLayout;
  fillRows->setSpacing(0);
  grid->addLayout(fillRows, 2, 0, 1, 2);
  fillRows->addWidget(makeFillRow(faces, faces.widget(form.lblStawkaVAT),
                                  {faces.widget(form.comboStawkaVAT)}, form.btnUzupelnij,
                                  form.btnNadpisz));
  auto* country = new QLabel(fromText(words::country));
  fillRows->addWidget(makeFillRow(faces, country,
                                  {faces.widget(form.comboCountry), faces.widget(form.Image2)},
                                  form.btnUzupelnij2, form.btnNadpisz2));
  nameBy(faces.label(form.lblStawkaVAT), faces.face(form.comboStawkaVAT));
  nameBy(*country, faces.face(form.comboCountry));
  table.view()->setAccessibleName(fromText(words::linesTable));
  table.offerMenu(fromText(words::copyCells));
  return frame;
}

QWidget* makePackages(AwizoForm& form, FormFace& faces) {
  QWidget* frame = faces.widget(form.Frame1);
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(insideFrame);
  row->setSpacing(6);
  TableFace& table = faces.table(form.grdOpakowania);
  QTableView* view = table.view();
  new ColumnFill(*view, GRD_OPAK_DESC);
  view->setAccessibleName(fromText(words::packagesTable));
  table.offerMenu(fromText(words::copyCells));
  view->setMinimumSize(view->fontMetrics().averageCharWidth() * 34,
                       view->fontMetrics().height() * 6);
  row->addWidget(view);
  row->addLayout(makeRowButtons(faces, packageCommands(form)));
  return frame;
}

QWidget* makeTotals(AwizoForm& form, FormFace& faces) {
  QWidget* frame = faces.widget(form.frmPodsumowanie);
  auto* rows = new QVBoxLayout(frame);
  rows->setContentsMargins(insideFrame);
  rows->setSpacing(4);
  rows->addWidget(makeSums(form, faces));
  rows->addLayout(makeCurrency(form, faces));
  rows->addStretch(1);
  auto* column = new QWidget;
  auto* parts = new QVBoxLayout(column);
  parts->setContentsMargins(0, 0, 0, 0);
  parts->setSpacing(6);
  parts->addWidget(frame, 1);
  parts->addLayout(makeWays(form, faces));
  return column;
}

Status makeStatus(AwizoForm& form, FormFace& faces) {
  auto* line = new Wrapped;
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(2, 0, 2, 0);
  auto* parts = new FlowingGroups;
  parts->setSpacing(12);
  row->addLayout(parts);

  auto* where = new QWidget;
  auto* whereRow = new QHBoxLayout(where);
  whereRow->setContentsMargins(0, 0, 0, 0);
  whereRow->setSpacing(12);
  QWidget* state = faces.widget(form.lblOnLineStatus);
  makeBold(*state);
  whereRow->addWidget(state);
  QLabel* address = makeAddress();
  whereRow->addWidget(address, 1);
  parts->addGroup(where, 2);
  auto* standing = new LongText("lblStanding");
  standing->setMinimumWidth(standing->fontMetrics().averageCharWidth() * 40);
  parts->addGroup(standing, 3);
  parts->addGroup(faces.widget(form.lblVersion), 0);
  return {line, address, standing};
}

}  // namespace awizo::desktop
