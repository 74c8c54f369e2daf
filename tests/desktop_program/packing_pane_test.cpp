#include "hosts/desktop/window/packing_pane.h"

#include <QAccessible>
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <ctime>

#include "desk/scanner_switch.h"
#include "desktop_program/program_test.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "support/documents.h"
#include "tables/clear_tables.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// Three lines and two boxes on a pallet.
class PackingPaneTest : public ProgramTest {
 protected:
  ~PackingPaneTest() override { close(); }

  desktop::PackingPane& pane() { return widget().packingPane(); }
  void addBox(const std::string& description, int parent = -1) {
    then([=, this] {
      DlgSzczegoly& package = control().dlgSzczegoly;
      package.txtPackageDesc.userType(description);
      if (parent >= 0) package.cboxParentPackage.userChoose(parent);
      package.cboxILNLokalizacji.userType("9520002000026");
      package.txtSerialNumberN.userType("106141412345678908");
      package.btnDodaj.userClick();
    });
    form().btnDodajOpak.userClick();
  }
  void openDocument() {
    open(offLineOptions());
    addBox("Паллета 1");
    addBox("Короб 1", 0);
    addBox("Короб 2", 0);
    addLine("Чай", "8,25");
    addLine("Рис", "5");
    addLine("Соль", "0,5");
    letLayoutsSettle();
  }
  std::string packed(int row) { return form().grdPozycje.cell(row, GRD_POZ_PACKED_QTY); }
  std::string summary() { return shownText(pane().summary()); }

  /// The rows that the tree shows, as it shows them: the deeper, the more dots before them.
  std::vector<std::string> shownPlaces() {
    std::vector<std::string> texts;
    const QTreeView* view = pane().packages();
    for (QModelIndex index = view->model()->index(0, 0); index.isValid();
         index = view->indexBelow(index)) {
      std::string text;
      for (QModelIndex around = index.parent(); around.isValid(); around = around.parent()) {
        text += ".";
      }
      text += index.data().toString().toStdString();
      texts.push_back(text + "|" + index.siblingAtColumn(1).data().toString().toStdString());
    }
    return texts;
  }
  std::vector<std::string> shownLines() {
    std::vector<std::string> texts;
    const QAbstractItemModel* model = pane().lines()->model();
    for (int row = 0; row < model->rowCount(); ++row) {
      texts.push_back(model->index(row, 1).data().toString().toStdString() + "|" +
                      model->index(row, 2).data().toString().toStdString());
    }
    return texts;
  }
  std::string expectedFocus(const QWidget* widget) {
    return QApplication::focusWidget() == widget ? "" : "the focus is elsewhere";
  }
};

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(PackingPaneTest, ComesByItsKeyAndShowsWhatLiesWhere) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  ASSERT_TRUE(pane().isVisible());
  EXPECT_EQ(QApplication::focusWidget(), pane().lines());
  letLayoutsSettle();
  EXPECT_GE(window().width(),
            std::min(widget().minimumSizeHint().width(), desktop::roomFor(window()).width()));
  EXPECT_FALSE(pane().lines()->visibleRegion().isEmpty()) << "it lies within a small screen too";
  EXPECT_EQ(summary(), "упаковано 0 из 3 строк");
  EXPECT_THAT(shownPlaces(), ElementsAre("Паллета 1|", ".Короб 1|", ".Короб 2|"));
  EXPECT_THAT(shownLines(), ElementsAre("Чай|0 из 8,25", "Рис|0 из 5", "Соль|0 из 0,5"));
  press(Qt::Key_F6);
  EXPECT_FALSE(pane().isVisible());
  EXPECT_EQ(QApplication::focusWidget(), widget().faces().focusedFace()->focusWidget());
}

TEST_F(PackingPaneTest, TheKeyPutsTheRestOfTheMarkedLinesIntoThePackage) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), pane().packages());
  press(Qt::Key_Down);
  press(Qt::Key_Insert);
  EXPECT_EQ(packed(1), "8,250");
  EXPECT_EQ(packed(2), "5,000");
  settle();
  EXPECT_EQ(summary(), "упаковано 2 из 3 строк");
  EXPECT_THAT(shownPlaces(), ElementsAre("Паллета 1|13,25", ".Короб 1|13,25", "..1 Чай|7,25",
                                         "..1 Чай|1", "..2 Рис|5", ".Короб 2|"));
  EXPECT_EQ(QApplication::focusWidget(), pane().packages()) << "the user goes on there";
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(packed(1), "0,000");
  EXPECT_EQ(packed(2), "0,000");
  settle();
  EXPECT_EQ(summary(), "упаковано 0 из 3 строк");
}

TEST_F(PackingPaneTest, AScannedUnitGoesWhereTheUserStandsInIt) {
  openDocument();
  widget().scannerSwitch().turn(true);
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_Tab);
  press(Qt::Key_Down);
  type("4607000000116");
  press(Qt::Key_Return);
  settle();
  EXPECT_EQ(form().grdPozycje.cell(1, GRD_POZ_PACK_REFS), "3@Короб 1@2@1,000");
}

TEST_F(PackingPaneTest, ThePackageStaysTheSameWhereOneAboveItGoes) {
  openDocument();
  addBox("Короб 3", 0);
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_Tab);
  press(Qt::Key_End);
  const auto current = [&] { return pane().packages()->currentIndex().data().toString(); };
  ASSERT_EQ(current(), "Короб 3");
  form().grdOpakowania.userRow(2);
  form().btnUsunOpak.userClick();
  settle();
  EXPECT_EQ(current(), "Короб 3");
}

TEST_F(PackingPaneTest, WhatIsDraggedFromAnotherProgramIsNotTaken) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  const std::unique_ptr<QMimeData> dragged(
      pane().lines()->model()->mimeData({pane().lines()->model()->index(0, 0)}));
  QMimeData others;
  others.setData("application/x-awizo-lines-1", dragged->data(dragged->formats().front()));
  const QAbstractItemModel* places = pane().packages()->model();
  const auto takes = [&](const QMimeData& data) {
    return places->canDropMimeData(&data, Qt::CopyAction, 0, 0, places->index(0, 0));
  };
  EXPECT_TRUE(takes(*dragged));
  EXPECT_FALSE(takes(others));
}

TEST_F(PackingPaneTest, WhatCanNotGoInIsListed) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_End);
  EXPECT_THAT(answerWithEnter([] { press(Qt::Key_Insert); }),
              ElementsAre(HasSubstr("Разложено строк: 0 из 0.\nСтрока 3 (Соль): осталось 0,5: "
                                    "меньше единицы в упаковку не положить")));
  press(Qt::Key_Home);
  EXPECT_THAT(answerWithEnter([] { press(Qt::Key_Insert); }), IsEmpty());
  ASSERT_EQ(packed(1), "8,250");
  settle();
  EXPECT_THAT(answerWithEnter([] { press(Qt::Key_Insert); }),
              ElementsAre(HasSubstr("Раскладывать нечего.")));
}

TEST_F(PackingPaneTest, LinesAreDraggedOntoAPackage) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  pane().lines()->selectAll();
  QTreeView* tree = pane().packages();
  const std::unique_ptr<QMimeData> dragged(
      pane().lines()->model()->mimeData(pane().lines()->selectionModel()->selectedIndexes()));
  const QModelIndex pallet = tree->model()->index(0, 0);
  const QPoint there = tree->visualRect(tree->model()->index(1, 0, pallet)).center();
  QDragEnterEvent enter(there, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(tree->viewport(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDragMoveEvent move(there, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(tree->viewport(), &move);
  QDropEvent drop(there, Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  EXPECT_THAT(answerWithEnter([&] {
                QApplication::sendEvent(tree->viewport(), &drop);
                settle();
              }),
              ElementsAre(HasSubstr("Строка 3 (Соль)")));
  EXPECT_EQ(form().grdPozycje.cell(2, GRD_POZ_PACK_REFS), "4@Короб 2@2@5,000");
  EXPECT_EQ(packed(1), "8,250");
}

TEST_F(PackingPaneTest, TheFilterLeavesWhatIsNotPacked) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_Insert);
  settle();
  pane().onlyRest()->click();
  EXPECT_THAT(shownLines(), ElementsAre("Рис|0 из 5", "Соль|0 из 0,5"));
  pane().lines()->setFocus();
  press(Qt::Key_Home);
  press(Qt::Key_Insert);
  settle();
  EXPECT_THAT(shownLines(), ElementsAre("Соль|0 из 0,5"));
}

TEST_F(PackingPaneTest, TheFilterMarksNoLineInPlaceOfThoseThatWent) {
  openDocument();
  pane().onlyRest()->click();
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_Insert);
  settle();
  EXPECT_THAT(shownLines(), ElementsAre("Рис|0 из 5", "Соль|0 из 0,5"));
  EXPECT_FALSE(pane().lines()->selectionModel()->hasSelection());
  EXPECT_FALSE(pane().packButton()->isEnabled());
  press(Qt::Key_Insert);
  settle();
  EXPECT_EQ(packed(2), "0,000") << "nobody has marked it";
  press(Qt::Key_Down);
  press(Qt::Key_Insert);
  settle();
  EXPECT_THAT(shownLines(), ElementsAre("Соль|0 из 0,5"));
}

TEST_F(PackingPaneTest, MarksGoWithTheDocumentTheyWereMadeIn) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_Down, Qt::ShiftModifier);
  ASSERT_EQ(pane().lines()->selectionModel()->selectedRows().size(), 2);
  ClearGrdPozycje(control().editor);
  putLines(control().editor, 3);
  settle();
  ASSERT_EQ(shownLines().size(), 3U);
  const QModelIndexList marked = pane().lines()->selectionModel()->selectedRows();
  ASSERT_EQ(marked.size(), 1);
  EXPECT_EQ(marked.front().row(), 0);
}

TEST_F(PackingPaneTest, AnotherCountOfLinesMarksNoLineByItself) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_Down);
  const QItemSelectionModel* selection = pane().lines()->selectionModel();
  ASSERT_TRUE(selection->hasSelection());
  const auto expectNothingMarked = [&](const char* after) {
    settle();
    EXPECT_FALSE(selection->hasSelection()) << after;
    EXPECT_EQ(pane().lines()->currentIndex().row(), 1) << after;
    pane().lines()->setFocus();
    press(Qt::Key_Insert);
    settle();
    EXPECT_EQ(summary(), "упаковано 0 из " + std::to_string(shownLines().size()) + " строк")
        << after;
    // Nobody has marked anything yet; the arrow begins where the user was.
    press(Qt::Key_Down);
    EXPECT_TRUE(selection->isRowSelected(1)) << after;
  };
  addLine("Мёд", "3");
  expectNothingMarked("a line added");
  press(Qt::Key_Z, Qt::ControlModifier);
  ASSERT_EQ(control().editor.session.LineCount, 3);
  expectNothingMarked("the line taken back");
  form().grdPozycje.userRow(3);
  form().btnUsun.userClick();
  ASSERT_EQ(control().editor.session.LineCount, 2);
  expectNothingMarked("a line removed");
}

TEST_F(PackingPaneTest, EnterLeadsToTheRowInTheTable) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(form().grdPozycje.row(), 2);
  EXPECT_EQ(QApplication::focusWidget(), widget().faces().table(form().grdPozycje).view());
  press(Qt::Key_F6);
  EXPECT_EQ(QApplication::focusWidget(), pane().lines()) << "it is shown, so it gets the focus";
  pane().packages()->setFocus();
  press(Qt::Key_End);
  press(Qt::Key_Return);
  EXPECT_EQ(form().grdOpakowania.row(), 3);
  EXPECT_EQ(QApplication::focusWidget(), widget().faces().table(form().grdOpakowania).view());
}

TEST_F(PackingPaneTest, AClosedPackageStaysClosedAfterAChange) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  pane().packages()->setFocus();
  press(Qt::Key_Home);
  press(Qt::Key_Left);
  EXPECT_THAT(shownPlaces(), ElementsAre("Паллета 1|"));
  addBox("Короб 3");
  settle();
  EXPECT_THAT(shownPlaces(), ElementsAre("Паллета 1|", "Короб 3|"));
}

TEST_F(PackingPaneTest, APackageClosedAroundTheCurrentOneStaysClosed) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  pane().packages()->setFocus();
  press(Qt::Key_Home);
  press(Qt::Key_Down);
  // As by the mouse on its arrow, which leaves the current one where it is.
  const QModelIndex pallet = pane().packages()->model()->index(0, 0);
  pane().packages()->collapse(pallet);
  EXPECT_EQ(pane().packages()->currentIndex(), pallet) << "nobody stands where nothing is seen";
  addBox("Короб 3");
  settle();
  EXPECT_THAT(shownPlaces(), ElementsAre("Паллета 1|", "Короб 3|"));
}

TEST_F(PackingPaneTest, IsThereAgainAtTheNextStart) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  answerNext("&Не сохранять");
  window().close();
  settle();
  close();
  open(offLineOptions());
  settle();
  EXPECT_TRUE(pane().isVisible());
  EXPECT_EQ(summary(), "упаковано 0 из 0 строк");
}

/// The processor's time, since other tests run beside this one.
double secondsOf(const std::function<void()>& act) {
  const std::clock_t start = std::clock();
  act();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST_F(PackingPaneTest, AsManyLinesAsThereCanBeArePackedInTheWindowInFiveSeconds) {
#ifdef NDEBUG
  constexpr bool isFull = true;
#else
  constexpr bool isFull = false;  // checked memory is slow, and so is plain code
#endif
  constexpr int count = isFull ? 1423 : 100;
  open(offLineOptions());
  addBox("Короб 1");
  for (const bool isShown : {false, true}) {
    putLines(control().editor, count);
    for (int row = 1; row <= count; ++row) form().grdPozycje.setCell(row, GRD_POZ_PACK_REFS, "");
    letLayoutsSettle();
    if (isShown) {
      press(Qt::Key_F6);
      settle();
      pane().lines()->selectAll();
      pane().packages()->setFocus();
    }
    const double taken = secondsOf([&] {
      if (isShown) {
        press(Qt::Key_Insert);
      } else {
        then([] { press(Qt::Key_Return); });
        press(Qt::Key_D, Qt::ControlModifier);
      }
      letLayoutsSettle();
    });
    EXPECT_EQ(packed(count), "1,000");
    RecordProperty(isShown ? "secondsWithPane" : "seconds", std::to_string(taken));
    if (isFull) {
      EXPECT_LT(taken, 5.0) << isShown;
    }
  }
  EXPECT_EQ(summary(),
            "упаковано " + std::to_string(count) + " из " + std::to_string(count) + " строк");
}

TEST_F(PackingPaneTest, FollowsAFullDocumentInNoTimeToSpeakOf) {
  open(offLineOptions());
  putLines(control().editor, 1423);
  putPackages(control().editor, 2183, [](int row) { return row % 20 == 1 ? 0 : row - 1; });
  for (int row = 1; row <= 1423; ++row) {
    form().grdPozycje.setCell(row, GRD_POZ_PACK_REFS, std::to_string(row + 1) + "@П@1@1,000");
  }
  press(Qt::Key_F6);
  letLayoutsSettle();
  EXPECT_EQ(pane().lines()->model()->rowCount(), 1423);
  const double taken = secondsOf([&, this] {
    form().grdPozycje.setCell(7, GRD_POZ_PACKED_QTY, "1,000");
    settle();
  });
  RecordProperty("milliseconds", std::to_string(taken * 1000));
  EXPECT_EQ(summary(), "упаковано 1 из 1423 строк");
  EXPECT_LT(taken, 0.5);
  press(Qt::Key_F6);
  const double hidden = secondsOf([&, this] {
    form().grdPozycje.setCell(7, GRD_POZ_PACKED_QTY, "0,000");
    settle();
  });
  RecordProperty("millisecondsHidden", std::to_string(hidden * 1000));
  EXPECT_EQ(summary(), "упаковано 1 из 1423 строк") << "it isn't made while nobody sees it";
}

TEST_F(PackingPaneTest, SaysItsNamesToScreenReaders) {
  openDocument();
  press(Qt::Key_F6);
  settle();
  for (QWidget* part : std::initializer_list<QWidget*>{pane().lines(), pane().packages(),
                                                       pane().onlyRest(), pane().packButton()}) {
    EXPECT_NE(QAccessible::queryAccessibleInterface(part)->text(QAccessible::Name), "");
  }
}

TEST_F(PackingPaneTest, ACodeScannedThereGoesToItsLine) {
  openDocument();
  form().grdPozycje.setCell(3, GRD_POZ_EAN, "9520001010026");
  press(Qt::Key_F6);
  settle();
  type("9520001010026");
  press(Qt::Key_Return);
  EXPECT_EQ(form().grdPozycje.row(), 3);
}

}  // namespace
}  // namespace awizo::test
