#include "hosts/desktop/window/main_layout.h"

#include <QSplitter>
#include <QVBoxLayout>

namespace awizo::desktop {

QLayout* captioned(const QString& caption, QWidget* field) {
  auto* column = new QVBoxLayout;
  column->setSpacing(2);
  auto* label = new QLabel(caption);
  label->setTextFormat(Qt::PlainText);
  column->addWidget(label);
  column->addWidget(field);
  return column;
}

void layOutMain(AwizoForm& form, FormFace& faces) {
  auto* below = new QSplitter(Qt::Horizontal);
  below->setChildrenCollapsible(false);
  below->addWidget(makePackages(form, faces));
  below->addWidget(makeTotals(form, faces));
  below->setStretchFactor(0, 1);
  auto* tables = new QSplitter(Qt::Vertical);
  tables->setChildrenCollapsible(false);
  tables->addWidget(makeLines(form, faces));
  tables->addWidget(below);
  tables->setStretchFactor(0, 3);
  tables->setStretchFactor(1, 1);

  auto* rows = new QVBoxLayout(&faces.window());
  rows->setContentsMargins(8, 8, 8, 6);
  rows->setSpacing(6);
  rows->addWidget(makeHeader(form, faces));
  rows->addWidget(tables, 1);
  rows->addWidget(makeStatus(form, faces));
}

}  // namespace awizo::desktop
