#include "hosts/desktop/screenshots/demo_user.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <iostream>

#include "desk/number_range_dialog.h"
#include "hosts/desktop/window/assistants.h"
#include "hosts/desktop/window/packing_pane.h"
#include "hosts/desktop/window/paper_maker.h"
#include "session/awizo_wysylki.h"
#include "tables/columns/columns.h"

namespace awizo::desktop {
namespace {

constexpr std::string_view warehouse = "9520002001016";

}  // namespace

void DemoUser::during(const std::function<void()>& action, const std::function<void()>& inside) {
  QTimer::singleShot(0, qApp, inside);
  action();
}

void DemoUser::take(const std::string& name) {
  // A layout that moves another asks for one more turn.
  for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
  QWidget* shown = QApplication::activeModalWidget();
  if (shown == nullptr) shown = widget_.window();
  const std::filesystem::path file = pictures_ / (name + ".png");
  if (!shown->grab().save(QString::fromStdString(file.string()))) {
    std::cerr << "can't write " << file << '\n';
    allTaken_ = false;
  }
}

void DemoUser::fillHeader() {
  AwizoForm& form = widget_.control().form;
  form.txtNrAwiza.userType("ТН-2026/0001");
  form.txtEstimatedDeliveryDate.userSet(makeDate(2026, 11, 30));
}

void DemoUser::setNumberRange() {
  during([&] { widget_.showNumberRange(); },
         [&] {
           NumberRangeDialog& dialog = widget_.numberRangeDialog();
           dialog.txtPrefix.userType("9520001");
           dialog.txtLast.userType("999999");
           take("number-range");
           dialog.btnSave.userClick();
         });
}

/// Its number comes from the firm's range.
void DemoUser::addPackage(int kind, const std::string& description, int parent,
                          const std::string& picture) {
  AwizoWysylki& control = widget_.control();
  during([&] { control.form.btnDodajOpak.userClick(); },
         [&] {
           DlgSzczegoly& dialog = control.dlgSzczegoly;
           dialog.cboxPackageType.userChoose(kind);
           dialog.txtPackageDesc.userType(description);
           if (parent >= 0) dialog.cboxParentPackage.userChoose(parent);
           dialog.cboxILNLokalizacji.userType(std::string(warehouse));
           if (!picture.empty()) take(picture);
           dialog.btnDodaj.userClick();
         });
}

void DemoUser::packLine(int row, int package, const std::string& picture) {
  AwizoWysylki& control = widget_.control();
  control.form.grdPozycje.userCell(row, GRD_POZ_NAME);
  during([&] { control.form.btnEdytuj.userClick(); },
         [&] {
           DlgDodaj& dialog = control.dlgDodaj;
           during([&] { dialog.Command1.userClick(); },
                  [&] {
                    control.dlgdodajPule.cboxPackages.userChoose(package);
                    if (!picture.empty()) take(picture + "-quantity");
                    control.dlgdodajPule.btnDodaj.userClick();
                  });
           if (!picture.empty()) take(picture);
           dialog.btnDodaj.userClick();
         });
}

void DemoUser::openDocuments() {
  widget_.control().dlgWczytajZapisz.DirList.userOpen("c:" + documents_);
}

void DemoUser::showOtherForms() {
  AwizoWysylki& control = widget_.control();
  during([&] { control.form.Image2.userClick(); },
         [&] {
           take("countries");
           control.dlgIsoCodes.userClose();
         });
  const auto closeFiles = [&] { control.dlgWczytajZapisz.ImageZamknij.userClick(); };
  during([&] { control.form.btnWczytaj.userClick(); },
         [&] {
           openDocuments();
           take("open");
           closeFiles();
         });
  during([&] { widget_.askOffLineFolder(); },
         [&] {
           openDocuments();
           take("folder");
           closeFiles();
         });
  // The document is only partly packed: the question comes first.
  during([&] { control.form.btnZapisz.userClick(); },
         [&] {
           take("question");
           QTimer::singleShot(0, qApp, [&] {
             openDocuments();
             take("save");
             closeFiles();
           });
           if (QWidget* box = QApplication::activeModalWidget()) {
             QKeyEvent yes(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
             QCoreApplication::sendEvent(box, &yes);
           }
         });
}

void DemoUser::showPapers() {
  PaperMaker& maker = widget_.paperMaker();
  const auto showPaper = [&](Paper paper, const char* name) {
    during([&] { maker.show(paper); },
           [&] {
             take(name);
             maker.dialog().btnClose.userClick();
           });
  };
  showPaper(Paper::labels, "labels");
  showPaper(Paper::packingList, "packing-list");
}

void DemoUser::showPacking() {
  PackingPane& pane = widget_.packingPane();
  pane.toggle();
  take("packing-pane");
  pane.toggle();
}

void DemoUser::showAssistants() {
  Assistants& assistants = widget_.assistants();
  during([&] { assistants.addPackages(); },
         [&] {
           PackagesDialog& dialog = assistants.packagesDialog();
           dialog.txtCount.userType("12");
           take("several-packages");
           dialog.btnClose.userClick();
         });
  during([&] { assistants.distribute(); },
         [&] {
           take("distribution");
           assistants.distributionDialog().btnClose.userClick();
         });
}

void DemoUser::work() {
  take("order");
  fillHeader();
  setNumberRange();
  addPackage(0, "Паллета 1", -1, "");
  addPackage(1, "Коробка 1", 0, "package");
  addPackage(1, "Коробка 2", 0, "");
  for (int row = 1; row <= 4; ++row) packLine(row, 1 + row % 2, row == 1 ? "line" : "");
  widget_.control().form.grdPozycje.userCell(1, GRD_POZ_NAME);
  take("main");
  showPacking();
  showAssistants();
  showPapers();
  showOtherForms();
}

}  // namespace awizo::desktop
