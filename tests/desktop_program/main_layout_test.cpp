// The main window with a document in it: all its controls have a place and are in sight.

#include <QAbstractScrollArea>
#include <QApplication>
#include <QHeaderView>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QWindow>

#include "desktop_program/program_test.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "support/documents.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// The smallest window that the program is made for, with an order that has come from the service.
class MainLayoutTest : public ProgramTest {
 protected:
  void openOrder() {
    agreeTo(service_);
    open(onLineOptions(service_));
    window().resize(1024, 700);
    letLayoutsSettle();
  }
  QScrollBar* windowsScrollBar() {
    return qobject_cast<QAbstractScrollArea*>(window().centralWidget())->verticalScrollBar();
  }
  /// The place of each control that is seen, in the window; not that of frames, which hold others,
  /// nor of the in-table editor.
  std::vector<std::pair<std::string, QRect>> places() {
    std::vector<std::pair<std::string, QRect>> found;
    for (const Control* control : form().controls()) {
      const QWidget* shown = face(*control).widget();
      const bool holdsOthers = control->kind() == ControlKind::frame;
      if (!shown->isVisible() || holdsOthers) continue;
      found.emplace_back(control->name(), QRect(shown->mapTo(&window(), QPoint()), shown->size()));
    }
    return found;
  }

 private:
  DemoService service_{place.posted()};
};

TEST_F(MainLayoutTest, EveryControlIsInSightWithoutScrolling) {
  openOrder();
  EXPECT_EQ(windowsScrollBar()->maximum(), 0);
  for (const auto& [name, area] : places()) {
    EXPECT_TRUE(window().rect().contains(area)) << name;
  }
}

TEST_F(MainLayoutTest, NoFieldIsSqueezed) {
  openOrder();
  for (const Control* control : form().controls()) {
    const QWidget* shown = face(*control).widget();
    const bool grows =
        control->kind() == ControlKind::table || control->kind() == ControlKind::frame;
    if (!shown->isVisible() || grows) continue;
    const int needed = control->kind() == ControlKind::label ? shown->heightForWidth(shown->width())
                                                             : shown->sizeHint().height();
    EXPECT_GE(shown->height(), needed) << control->name();
  }
}

TEST_F(MainLayoutTest, NoTwoControlsOverlap) {
  openOrder();
  const auto all = places();
  for (std::size_t one = 0; one < all.size(); ++one) {
    for (std::size_t other = 0; other < one; ++other) {
      EXPECT_FALSE(all[one].second.intersects(all[other].second))
          << all[one].first << " and " << all[other].first;
    }
  }
}

TEST_F(MainLayoutTest, EveryControlIsGivenAPlace) {
  openOrder();
  for (const Control* control : form().controls()) {
    QWidget* shown = face(*control).widget();
    const QWidget& whole = widget().faces().window();
    EXPECT_TRUE(shown->parentWidget() != &whole || whole.layout()->indexOf(shown) >= 0)
        << control->name() << " was given no place";
  }
}

TEST_F(MainLayoutTest, ALongAddressTakesLinesFromTheTablesAlone) {
  openOrder();
  QWidget* address = face(form().lblAdresMiejscaDostawy).widget();
  const int before = address->height();
  const int field = face(form().txtNrAwiza).widget()->height();
  form().lblAdresMiejscaDostawy.setCaption(
      "142100, Московская область, городской округ Подольск, посёлок Быково, улица Складская, "
      "дом 3, строение 12, въезд с восточной стороны, ворота 5");
  letLayoutsSettle();
  EXPECT_GT(address->height(), before);
  EXPECT_GE(address->height(), address->heightForWidth(address->width()));
  EXPECT_EQ(face(form().txtNrAwiza).widget()->height(), field);
}

/// A user who needs letters of this size.
class TextSizeTest : public ProgramTest {
 protected:
  explicit TextSizeTest(double points) : before_(QApplication::font()) {
    QFont wanted = before_;
    wanted.setPointSizeF(points);
    QApplication::setFont(wanted);
  }
  ~TextSizeTest() override {
    close();
    QApplication::setFont(before_);
  }

  void openOnSmallScreen() {
    open(offLineOptions());
    window().resize(800, 600);
    letLayoutsSettle();
  }
  const QAbstractScrollArea& windowsArea() {
    return *qobject_cast<QAbstractScrollArea*>(window().centralWidget());
  }

 private:
  QFont before_;
};

class EachTextSizeTest : public TextSizeTest, public testing::WithParamInterface<double> {
 protected:
  EachTextSizeTest() : TextSizeTest(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(Points, EachTextSizeTest, testing::Values(9.0, 12.0, 16.0));

TEST_P(EachTextSizeTest, NothingScrollsSidewaysOnTheSmallestScreen) {
  openOnSmallScreen();
  EXPECT_EQ(windowsArea().horizontalScrollBar()->maximum(), 0)
      << widget().minimumSizeHint().width();
  EXPECT_LE(window().minimumSizeHint().width(), 800);
  EXPECT_LE(window().minimumSizeHint().height(), 600);
}

TEST_P(EachTextSizeTest, TheHeaderWrapsAndIsWhole) {
  openOnSmallScreen();
  form().lblAdresMiejscaDostawy.setCaption(
      "142100, Московская область, городской округ Подольск, посёлок Быково, дом 3");
  letLayoutsSettle();
  const QWidget* header = face(form().frmDaneNaglowka).widget();
  std::vector<std::pair<std::string, QRect>> places;
  for (const Control* control : form().controls()) {
    const QWidget* shown = face(*control).widget();
    if (shown == header || !header->isAncestorOf(shown) || !shown->isVisible()) continue;
    const QRect area(shown->mapTo(header, QPoint()), shown->size());
    EXPECT_TRUE(header->rect().contains(area)) << control->name();
    const int needed = control->kind() == ControlKind::label ? shown->heightForWidth(shown->width())
                                                             : shown->minimumSizeHint().height();
    EXPECT_GE(shown->height(), needed) << control->name();
    for (const auto& [name, other] : places) {
      EXPECT_FALSE(area.intersects(other)) << name << " and " << control->name();
    }
    places.emplace_back(control->name(), area);
  }
  EXPECT_GE(places.size(), 10U);
}

TEST_P(EachTextSizeTest, TheHeadersGroupsAreSideBySideWhereThereIsRoom) {
  open(offLineOptions());
  const auto top = [this](const Control& field) {
    return face(field).widget()->mapTo(&widget(), QPoint()).y();
  };
  window().resize(3000, 1000);
  letLayoutsSettle();
  EXPECT_EQ(top(form().txtNrAwiza), top(form().txtNrZam));
  EXPECT_EQ(top(form().txtNrAwiza), top(form().txtEstimatedDeliveryDate));
}

TEST_P(EachTextSizeTest, PackagesAndTotalsAreUsefullyWideOnTheSmallestScreen) {
  openOnSmallScreen();
  const QWidget* packages = face(form().grdOpakowania).widget();
  EXPECT_GE(packages->width(), packages->fontMetrics().averageCharWidth() * 30);
  const QWidget* totals = face(form().grdSuma).widget();
  EXPECT_GE(totals->width(),
            widget().faces().table(form().grdSuma).view()->horizontalHeader()->length());
}

/// On the smallest screen.
class LargeTextTest : public TextSizeTest {
 protected:
  LargeTextTest() : TextSizeTest(16) {}
};

TEST_F(LargeTextTest, TheFillRowWrapsAndTheWholeFormCanBeScrolledTo) {
  openOnSmallScreen();
  const QWidget* fillEmpty = face(form().btnUzupelnij2).widget();
  const QWidget* fillAll = face(form().btnNadpisz2).widget();
  const auto top = [this](const QWidget* shown) { return shown->mapTo(&widget(), QPoint()).y(); };
  EXPECT_GT(top(fillAll), top(fillEmpty));
  for (const Control* control : form().controls()) {
    const QWidget* shown = face(*control).widget();
    if (!shown->isVisible()) continue;
    const QRect area(shown->mapTo(&widget(), QPoint()), shown->size());
    EXPECT_TRUE(widget().rect().contains(area)) << control->name();
  }
}

TEST_F(LargeTextTest, WhatWasTurnedIsSideBySideAgainInAWiderWindow) {
  openOnSmallScreen();
  const auto corner = [this](const Control& control) {
    return face(control).widget()->mapTo(&widget(), QPoint());
  };
  EXPECT_GT(corner(form().grdSuma).y(), corner(form().grdOpakowania).y() + 100);
  window().resize(1800, 1000);
  letLayoutsSettle();
  EXPECT_GT(corner(form().grdSuma).x(), corner(form().grdOpakowania).x() + 100);
  EXPECT_GE(face(form().grdOpakowania).widget()->width(), 300);
}

TEST_F(LargeTextTest, ADialogIsNoLargerThanTheScreen) {
  open(offLineOptions());
  bool seenDialog = false;
  then([&] {
    seenDialog = true;
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    const QSize room = dialog->screen()->availableSize();
    EXPECT_LE(dialog->width(), room.width());
    EXPECT_LE(dialog->height(), room.height());
    press(Qt::Key_Escape);
  });
  form().btnDodaj.userClick();
  EXPECT_TRUE(seenDialog);
}

TEST_F(MainLayoutTest, TheWindowOpensAsLargeAsItNeedsWhereTheScreenHasRoom) {
  openOrder();
  const auto* area = qobject_cast<QAbstractScrollArea*>(window().centralWidget());
  EXPECT_EQ(area->sizeHint(), widget().sizeHint());
}

TEST_F(MainLayoutTest, AWindowComesBackAsItsUserLeftIt) {
  open(offLineOptions());
  window().resize(desktop::roomFor(window()) - QSize(10, 10));
  letLayoutsSettle();
  const QSize size = window().size();
  auto* tables = window().findChild<QSplitter*>("linesAndPackages");
  ASSERT_NE(tables, nullptr);
  const QList<int> before = tables->sizes();
  tables->setSizes({before[0] - 20, before[1] + 20});
  letLayoutsSettle();
  const QList<int> left = tables->sizes();
  ASSERT_NE(left, before);
  close();
  open(offLineOptions());
  letLayoutsSettle();
  EXPECT_EQ(window().size(), size);
  EXPECT_EQ(window().findChild<QSplitter*>("linesAndPackages")->sizes(), left);
}

/// Drags the right edge of a column's heading.
void dragEdge(const QTableView& view, int column, int by) {
  const QHeaderView& header = *view.horizontalHeader();
  QWindow* window = view.window()->windowHandle();
  const int edge = header.sectionViewportPosition(column) + header.sectionSize(column) - 1;
  const QPoint from = header.viewport()->mapTo(view.window(), QPoint(edge, header.height() / 2));
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
  QTest::mouseMove(window, from + QPoint(by, 0));
  QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, from + QPoint(by, 0));
}

TEST_F(MainLayoutTest, ColumnsComeBackAsWideAsTheirUserMadeThem) {
  const auto lines = [this] { return widget().faces().table(form().grdPozycje).view(); };
  open(offLineOptions());
  letLayoutsSettle();
  const int usualEan = lines()->columnWidth(GRD_POZ_EAN);
  dragEdge(*lines(), GRD_POZ_EAN, 40);
  letLayoutsSettle();
  const int wideEan = lines()->columnWidth(GRD_POZ_EAN);
  EXPECT_EQ(wideEan, usualEan + 40);
  close();
  open(offLineOptions());
  letLayoutsSettle();
  EXPECT_NEAR(lines()->columnWidth(GRD_POZ_EAN), wideEan, 1);
  EXPECT_GE(lines()->horizontalHeader()->length(), lines()->viewport()->width());
  putLines(control().editor, 5);
  letLayoutsSettle();
  EXPECT_NEAR(lines()->columnWidth(GRD_POZ_EAN), wideEan, 1);
}

/// Drags the first handle of a splitter along its way.
void dragHandle(const QSplitter& splitter, int by) {
  const QWidget* handle = splitter.handle(1);
  QWindow* window = splitter.window()->windowHandle();
  const QPoint from = handle->mapTo(splitter.window(), handle->rect().center());
  const QPoint to =
      from + (splitter.orientation() == Qt::Horizontal ? QPoint(by, 0) : QPoint(0, by));
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
  QTest::mouseMove(window, to);
  QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, to);
}

TEST_F(MainLayoutTest, ASplitterThatTurnsKeepsItsUsersSizesOfEitherWay) {
  const auto splitter = [this] { return window().findChild<QSplitter*>("packagesAndTotals"); };
  const auto resized = [this](int width) {
    window().resize(width, 700);
    letLayoutsSettle();
  };
  open(offLineOptions());
  resized(1024);
  ASSERT_EQ(splitter()->orientation(), Qt::Horizontal);
  dragHandle(*splitter(), -60);
  letLayoutsSettle();
  const QList<int> beside = splitter()->sizes();
  resized(500);
  ASSERT_EQ(splitter()->orientation(), Qt::Vertical);
  resized(1024);
  ASSERT_EQ(splitter()->orientation(), Qt::Horizontal);
  EXPECT_EQ(splitter()->sizes(), beside);
  resized(500);
  const QList<int> belowBefore = splitter()->sizes();
  dragHandle(*splitter(), 15);
  letLayoutsSettle();
  const QList<int> below = splitter()->sizes();
  EXPECT_NE(below, belowBefore);
  close();
  open(offLineOptions());
  resized(500);
  EXPECT_EQ(splitter()->sizes(), below);
  resized(1024);
  EXPECT_EQ(splitter()->sizes(), beside);
}

TEST_F(MainLayoutTest, ASplitterThatIsDraggedGivesNoColumnAWidth) {
  open(offLineOptions());
  window().resize(1024, 700);
  letLayoutsSettle();
  const auto* splitter = window().findChild<QSplitter*>("packagesAndTotals");
  const auto& packages = widget().faces().table(form().grdOpakowania);
  const int before = packages.view()->width();
  dragHandle(*splitter, -60);
  letLayoutsSettle();
  EXPECT_LT(packages.view()->width(), before);
  EXPECT_TRUE(packages.givenWidths().empty());
}

}  // namespace
}  // namespace awizo::test
