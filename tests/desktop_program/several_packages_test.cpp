#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "adapters/memory/fixed_clock.h"
#include "adapters/posix/posix_shared_store.h"
#include "desktop_program/program_test.h"
#include "hosts/desktop/window/assistants.h"
#include "numbers/given_numbers.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

class SeveralPackagesTest : public ProgramTest {
 protected:
  SeveralPackagesTest() { numbers.setRange({"3", "9520001", 1, 1000, 1}); }
  ~SeveralPackagesTest() override { close(); }

  int packageCount() { return control().editor.session.IloscPozycjiOpak; }
  PackagesDialog& dialog() { return widget().assistants().packagesDialog(); }

  /// Opens the dialog by its key; the user acts there.
  void asking(const std::function<void()>& inside) {
    then(inside);
    press(Qt::Key_N, Qt::ControlModifier);
  }

  /// Types into the dialog's fields and accepts.
  void addBoxes(int count) {
    typeOver(dialogFace(dialog().txtCount), QString::number(count));
    typeOver(dialogFace(dialog().txtPlace), "9520002000026");
    press(Qt::Key_Return);
  }
  desktop::Face& dialogFace(const Control& control) {
    return static_cast<desktop::FormDialog*>(QApplication::activeModalWidget())
        ->faces()
        .face(control);
  }

  PosixSharedStore store{(place.settings().string() + "-numbers-")};
  FixedClock clock{{makeDate(2026, 11, 21), {10, 15, 0}}};
  GivenNumbers numbers{store, clock};
};

TEST_F(SeveralPackagesTest, TheKeyAsksAndThreeBoxesAreMadeAndTakenBackAtOnce) {
  open(offLineOptions());
  asking([this] { addBoxes(3); });
  EXPECT_EQ(packageCount(), 3);
  EXPECT_EQ(form().grdOpakowania.cell(3, GRD_OPAK_DESC), "Коробка 3");
  EXPECT_EQ(form().grdOpakowania.cell(3, GRD_OPAK_SERIAL_NUMBER), "395200010000000035");
  EXPECT_EQ(numbers.range()->next, 4U);
  EXPECT_FALSE(widget().isWorking());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  tabTo(form().grdOpakowania);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(packageCount(), 0);
}

TEST_F(SeveralPackagesTest, AScannedLabelGoesToItsPackageFromEitherTable) {
  open(offLineOptions());
  asking([this] { addBoxes(3); });
  Table& packages = form().grdOpakowania;
  for (const Table* table : {&packages, &form().grdPozycje}) {
    packages.userCell(3, GRD_OPAK_DESC);
    tabTo(*table);
    type("(00)395200010000000028");
    press(Qt::Key_Return);
    EXPECT_EQ(packages.row(), 2);
    EXPECT_EQ(form().focus(), &packages);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }
}

TEST_F(SeveralPackagesTest, TheKeyDistributesLinesOverTheBoxes) {
  open(offLineOptions());
  asking([this] { addBoxes(2); });
  addLine("Чай", "8,25");
  addLine("Чай", "5");
  then([this] {
    EXPECT_EQ(shownText(dialogFace(widget().assistants().distributionDialog().lblSummary)),
              "Строк войдёт целиком: 2 из 2.");
    press(Qt::Key_Return);
  });
  press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(form().grdPozycje.cell(1, GRD_POZ_PACKED_QTY), "8,250");
  EXPECT_EQ(form().grdPozycje.cell(2, GRD_POZ_PACKED_QTY), "5,000");
  widget().takeBack();
  EXPECT_EQ(form().grdPozycje.cell(1, GRD_POZ_PACKED_QTY), "0,000");
}

TEST_F(SeveralPackagesTest, ARefusalIsTold) {
  numbers.setRange({"3", "9520001", 1, 2, 1});
  open(offLineOptions());
  std::string told;
  asking([&, this] {
    answerNext("ОК", &told);
    addBoxes(3);
  });
  EXPECT_EQ(
      told,
      "exclamation|VIRD|Добавлено упаковок: 2 из 3.\n«Коробка 3»: Не заполнено поле 'серийный "
      "номер'|ОК");
  EXPECT_EQ(packageCount(), 2);
}

TEST_F(SeveralPackagesTest, TheUserStopsALongRun) {
  numbers.setRange({"3", "9520001", 1, 5000, 1});
  open(offLineOptions());
  QString told;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&] {
    for (QWidget* shown : QApplication::topLevelWidgets()) {
      auto* box = qobject_cast<QMessageBox*>(shown);
      if (box == nullptr || !box->isVisible()) continue;
      told += box->text() + "\n";
      box->buttons().front()->click();
    }
  });
  user.start(0);
  asking([this] { addBoxes(2183); });
  EXPECT_GT(packageCount(), 0);
  EXPECT_LT(packageCount(), 2183);
  const QString count = QString::number(packageCount());
  EXPECT_EQ(told, "Добавлено упаковок: " + count + " из 2183\nДобавлено упаковок: " + count +
                      " из 2183.\n");
  EXPECT_FALSE(widget().isWorking());
}

}  // namespace
}  // namespace awizo::test
