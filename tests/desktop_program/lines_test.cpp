#include <QLabel>

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
  bool isSeen(const Table& shown, int row) {
    const QTableView* view = widget().faces().table(shown).view();
    return view->viewport()->rect().contains(view->visualRect(view->model()->index(row - 1, 0)));
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

}  // namespace
}  // namespace awizo::test
