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
    window().resize(width, 1400);
    letLayoutsSettle();
  };
  // Both have more than they need, so that the handle between them can be dragged.
  const auto giveRoom = [this] {
    window().findChild<QSplitter*>("linesAndPackages")->setSizes({400, 486});
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
  giveRoom();
  const QList<int> belowBefore = splitter()->sizes();
  dragHandle(*splitter(), -40);
  letLayoutsSettle();
  const QList<int> below = splitter()->sizes();
  EXPECT_NE(below, belowBefore);
  close();
  open(offLineOptions());
  resized(500);
  giveRoom();
  EXPECT_NEAR(splitter()->sizes()[0], below[0], 3);
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
