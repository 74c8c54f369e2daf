#include "hosts/desktop/window/main_layout.h"

#include <QVBoxLayout>

#include "hosts/desktop/layouts/turning_splitter.h"

namespace awizo::desktop {

Status layOutMain(Editor& editor, FormFace& faces, QWidget& lineStrip) {
  AwizoForm& form = editor.form;
  auto* below = new TurningSplitter;
  below->setObjectName("packagesAndTotals");
  below->setChildrenCollapsible(false);
  below->addWidget(makePackages(form, faces));
  below->addWidget(makeTotals(form, faces));
  below->setStretchFactor(0, 1);
  below->setStretchFactor(1, 0);
  auto* tables = new QSplitter(Qt::Vertical);
  tables->setObjectName("linesAndPackages");
  tables->setChildrenCollapsible(false);
  tables->addWidget(makeLines(editor, faces, lineStrip));
  tables->addWidget(below);
  tables->setStretchFactor(0, 3);
  tables->setStretchFactor(1, 1);

  auto* rows = new QVBoxLayout(&faces.window());
  rows->setContentsMargins(8, 8, 8, 6);
  rows->setSpacing(6);
  rows->addWidget(makeHeader(form, faces));
  rows->addWidget(tables, 1);
  const Status status = makeStatus(form, faces);
  rows->addWidget(status.line);
  return status;
}

}  // namespace awizo::desktop
