#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QTimer>

#include "desktop_program/program_test.h"
#include "hosts/desktop/faces/table_face.h"
#include "support/documents.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// Forty lines, of which the table shows a few.
class LinesTest : public ProgramTest {
 protected:
  void openLines() {
    open(offLineOptions());
    putLines(control().editor, 40);
    putPackages(control().editor, 40, [](int) { return 0; });
    for (int row = 1; row <= 40; ++row) {
      table().setCell(row, GRD_POZ_NAME, "Кофе " + std::to_string(row));
    }
    letLayoutsSettle();
  }

  Table& table() { return form().grdPozycje; }
  std::string strip() { return shownText(window().findChild<QLabel*>("lineStrip")); }
  /// Chooses the entry that begins so of the menu that the right button brings there; returns all
  /// entries, none where no menu came.
  QStringList menuAt(const QPoint& there, const QString& words,
                     QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
    QStringList entries;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      look.stop();
      QAction* chosen = nullptr;
      for (QAction* action : menu->actions()) {
        entries << QString(action->text()).remove('&');
        if (entries.back().startsWith(words)) chosen = action;
      }
      EXPECT_NE(chosen, nullptr) << words.toStdString();
      menu->setActiveAction(chosen);
      QTest::keyClick(menu, chosen == nullptr ? Qt::Key_Escape : Qt::Key_Return);
    });
    look.start(0);
    QTableView* view = widget().faces().table(table()).view();
    QWidget* target = reason == QContextMenuEvent::Mouse ? view->viewport() : view;
    QContextMenuEvent wanted(reason, there, target->mapToGlobal(there));
    QApplication::sendEvent(target, &wanted);
    settle();
    return entries;
  }
  QPoint centerOf(int row) {
    const QTableView* view = widget().faces().table(table()).view();
    return view->visualRect(view->model()->index(row - 1, GRD_POZ_NAME)).center();
  }
  void rightClick(const QPoint& there) {
    QTest::mouseClick(widget().faces().table(table()).view()->viewport(), Qt::RightButton,
                      Qt::NoModifier, there);
  }
  bool isSeen(const Table& shown, int row) {
    const QTableView* view = widget().faces().table(shown).view();
    const int top = view->rowViewportPosition(row - 1);
    return top >= 0 && top + view->rowHeight(row - 1) <= view->viewport()->height();
  }
};

TEST_F(LinesTest, TheLineBelowTheTableFollowsTheCurrentRow) {
  open(offLineOptions());
  EXPECT_EQ(strip(), "Строка не выбрана");
  openLines();
  table().setRow(17);
  settle();
  EXPECT_EQ(strip(), "17 · Кофе 17 · заказано 5 · отгружено 1 · упаковано 0 · осталось 1");
  table().setCell(17, GRD_POZ_PRICE, "abc");
  settle();
  EXPECT_EQ(strip(),
            "17 · Кофе 17 · заказано 5 · отгружено 1 · упаковано 0 · осталось 1 · цена не число");
  const QModelIndex cell = widget().faces().table(table()).view()->model()->index(16, GRD_POZ_EAN);
  EXPECT_EQ(cell.data(Qt::AccessibleDescriptionRole).toString(), "цена не число");
}

TEST_F(LinesTest, F2AndDelBringTheRowIntoSightBeforeTheyAct) {
  openLines();
  tabTo(table());
  for (const auto& [key, button] :
       {std::pair{Qt::Key_F2, &form().btnEdytuj}, std::pair{Qt::Key_Delete, &form().btnUsun}}) {
    table().setTopRow(1);
    table().setRow(39);
    bool seen = false;
    button->onClick = [&] { seen = isSeen(table(), 39); };
    ASSERT_FALSE(isSeen(table(), 39));
    press(key);
    EXPECT_TRUE(seen) << button->name();
  }
}

TEST_F(LinesTest, ThePencilAndTheBinOfThePackagesDoToo) {
  openLines();
  Table& packages = form().grdOpakowania;
  for (Button* button : {&form().btnEdytujOpak, &form().btnUsunOpak}) {
    packages.setTopRow(1);
    packages.setRow(39);
    bool seen = false;
    button->onClick = [&] { seen = isSeen(packages, 39); };
    ASSERT_FALSE(isSeen(packages, 39));
    click(face(*button));
    EXPECT_TRUE(seen) << button->name();
  }
}

TEST_F(LinesTest, CtrlFGoesToALineAndF3ToTheNext) {
  openLines();
  then([] {
    type("кофе 3");
    press(Qt::Key_Return);
  });
  press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(table().row(), 3);
  EXPECT_EQ(form().focus(), &table());
  press(Qt::Key_F3);
  EXPECT_EQ(table().row(), 30);
  EXPECT_TRUE(isSeen(table(), 30));
}

TEST_F(LinesTest, AScannedCodeGoesToItsLine) {
  openLines();
  table().setCell(33, GRD_POZ_EAN, "9520001010026");
  tabTo(table());
  type("9520001010026");
  EXPECT_EQ(strip(), "Код: 9520001010026");
  press(Qt::Key_Return);
  EXPECT_EQ(table().row(), 33);
  EXPECT_TRUE(isSeen(table(), 33));
  settle();
  EXPECT_EQ(strip(), "33 · Кофе 33 · заказано 5 · отгружено 1 · упаковано 0 · осталось 1");
  type("11111111");
  press(Qt::Key_Return);
  EXPECT_EQ(table().row(), 33);
  EXPECT_EQ(strip(), "Нет строки с кодом 11111111");
}

TEST_F(LinesTest, DigitsThatAreNoCodeLeaveEnterToTheTable) {
  openLines();
  table().userCell(2, GRD_POZ_QTY_DESPATCHED);
  settle();
  type("12");
  press(Qt::Key_Return);
  EXPECT_TRUE(form().txtEdycja.visible());
}

TEST_F(LinesTest, CtrlHomeAndCtrlEndGoToTheFirstAndTheLastLine) {
  openLines();
  tabTo(table());
  press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(table().row(), 40);
  EXPECT_TRUE(isSeen(table(), 40));
  press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(table().row(), 1);
  EXPECT_TRUE(isSeen(table(), 1));
}

TEST_F(LinesTest, CtrlCCopiesTheMarkedCells) {
  openLines();
  tabTo(table());
  table().userSelect(1, GRD_POZ_NAME, 2, GRD_POZ_QTY_DESPATCHED);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "Кофе 1\t1,000\nКофе 2\t1,000\n");
}

TEST_F(LinesTest, TheMenuOfARowActsOnTheRowUnderIt) {
  openLines();
  QTableView* view = widget().faces().table(table()).view();
  const QPoint there = view->visualRect(view->model()->index(2, GRD_POZ_NAME)).center();
  QTest::mouseClick(view->viewport(), Qt::RightButton, Qt::NoModifier, there);
  EXPECT_EQ(table().row(), 3);
  const QStringList entries = menuAt(there, "Копировать");
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "Кофе 3\n");
  EXPECT_EQ(entries.size(), 4) << entries.join("|").toStdString();
  menuAt(there, "Удалить");
  EXPECT_EQ(table().cell(3, GRD_POZ_NAME), "Кофе 4");
}

TEST_F(LinesTest, AMarkedRangeStaysWhereItsMenuComes) {
  openLines();
  table().userSelect(2, GRD_POZ_NAME, 4, GRD_POZ_NAME);
  settle();
  rightClick(centerOf(3));
  EXPECT_EQ(table().row(), 2);
  EXPECT_EQ(table().rowSel(), 4);
  menuAt(centerOf(3), "Копировать");
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "Кофе 2\nКофе 3\nКофе 4\n");
  menuAt(centerOf(3), "Удалить");
  EXPECT_EQ(table().cell(2, GRD_POZ_NAME), "Кофе 2");
  EXPECT_EQ(table().cell(3, GRD_POZ_NAME), "Кофе 4") << "it acts on the row under the mouse";
  menuAt(centerOf(table().row()), "Удалить", QContextMenuEvent::Keyboard);
  EXPECT_EQ(table().cell(3, GRD_POZ_NAME), "Кофе 5") << "the key's menu acts on the current row";
}

TEST_F(LinesTest, NoMenuComesWhereTheClickReachesNoRow) {
  open(offLineOptions());
  putLines(control().editor, 2);
  letLayoutsSettle();
  const QTableView* view = widget().faces().table(table()).view();
  const QPoint below(10, view->viewport()->height() - 2);
  ASSERT_FALSE(view->indexAt(below).isValid());
  rightClick(below);
  EXPECT_TRUE(menuAt(below, "Удалить").isEmpty());
  // A field that isn't right yet takes the focus back.
  form().txtNrAwiza.userFocus();
  form().txtNrAwiza.onLostFocus = [this] { form().txtNrAwiza.setFocus(); };
  rightClick(centerOf(2));
  EXPECT_TRUE(menuAt(centerOf(2), "Удалить").isEmpty());
  EXPECT_TRUE(menuAt(centerOf(table().row()), "Удалить").isEmpty());
  EXPECT_EQ(control().editor.session.LineCount, 2);
}

TEST_F(LinesTest, TheFieldOverACellIsInItsPlaceWhenTheTableIsShownAgain) {
  openLines();
  table().userCell(2, GRD_POZ_QTY_DESPATCHED);
  settle();
  press(Qt::Key_Return);
  ASSERT_TRUE(form().txtEdycja.visible());
  QTableView* view = widget().faces().table(table()).view();
  const auto cell = [&] {
    return view->visualRect(view->model()->index(1, GRD_POZ_QTY_DESPATCHED));
  };
  const QRect before = cell();
  ASSERT_EQ(face(form().txtEdycja).widget()->geometry(), before);
  view->hide();
  view->setColumnWidth(GRD_POZ_EAN, view->columnWidth(GRD_POZ_EAN) + 30);
  view->show();
  letLayoutsSettle();
  ASSERT_NE(cell(), before);
  EXPECT_EQ(face(form().txtEdycja).widget()->geometry(), cell());
}

TEST_F(LinesTest, ADoubleClickOnAPackageEditsIt) {
  openLines();
  int edits = 0;
  form().btnEdytujOpak.onClick = [&] { ++edits; };
  const QTableView* view = widget().faces().table(form().grdOpakowania).view();
  const QPoint cell = view->visualRect(view->model()->index(1, GRD_OPAK_DESC)).center();
  doubleClick(view->viewport(), cell);
  EXPECT_EQ(edits, 1);
  EXPECT_EQ(form().grdOpakowania.row(), 2);
}

TEST_F(LinesTest, F8ListsWhatIsWrongAndEnterGoesThere) {
  openLines();
  for (int row = 1; row <= 40; ++row) table().setCell(row, GRD_POZ_PACKED_QTY, "1,000");
  table().setCell(38, GRD_POZ_EAN, "ABC");
  form().txtNrAwiza.userType("ТН-6");
  form().txtNrZam.userType("ЗК-1");
  std::string title;
  then([&] {
    title = desktop::toText(QApplication::activeModalWidget()->windowTitle());
    press(Qt::Key_Return);
  });
  press(Qt::Key_F8);
  EXPECT_EQ(title, "Что не так: 81");
  EXPECT_EQ(table().row(), 38);
  EXPECT_TRUE(isSeen(table(), 38));
  EXPECT_EQ(form().focus(), &table());
}

TEST_F(LinesTest, AFaultOfTheHeaderLeadsToItsField) {
  openLines();
  then([] { press(Qt::Key_Return); });
  press(Qt::Key_F8);
  EXPECT_EQ(form().focus(), &form().txtNrAwiza);
}

TEST_F(LinesTest, TheTabKeyLeadsToTheCurrentRowWhereverItIs) {
  openLines();
  table().setRow(40);
  table().userScroll(1);
  letLayoutsSettle();
  ASSERT_FALSE(isSeen(table(), 40));
  tabTo(table());
  letLayoutsSettle();
  EXPECT_TRUE(isSeen(table(), 40));
}

/// Each dialog begins where something was chosen without the user, however he left it before.
TEST_F(LinesTest, PackingBeginsAtThePackageEachTime) {
  open(offLineOptions());
  putLines(control().editor, 5);
  const Form& small = control().dlgdodajPule;
  for (const char* description : {"Паллета 1", "Паллета 2"}) {
    then([&] {
      DlgSzczegoly& package = control().dlgSzczegoly;
      EXPECT_EQ(package.focus(), &package.cboxPackageType) << description;
      package.txtPackageDesc.userType(description);
      package.cboxILNLokalizacji.userType("9520002001016");
      package.txtSerialNumberN.userType("035200010000000016");
      package.btnDodaj.userClick();
    });
    form().btnDodajOpak.userClick();
  }
  ASSERT_EQ(control().editor.session.IloscPozycjiOpak, 2);
  form().grdPozycje.setCell(1, GRD_POZ_QTY_DESPATCHED, "5,000");
  form().grdPozycje.userCell(1, GRD_POZ_NAME);
  int seen = 0;
  const auto pack = [&] {
    then([&] {
      ++seen;
      EXPECT_EQ(small.focus(), &control().dlgdodajPule.cboxPackages);
      press(Qt::Key_Tab);
      type("2");
      press(Qt::Key_Return);
    });
    control().dlgDodaj.Command1.userClick();
  };
  then([&] {
    pack();
    pack();
    control().dlgDodaj.userClose();
  });
  form().btnEdytuj.userClick();
  EXPECT_EQ(seen, 2);
}

}  // namespace
}  // namespace awizo::test
