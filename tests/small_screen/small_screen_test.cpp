// The smallest screen that the program is made for, with letters of every size: all that is needed
// lies on it, or is scrolled to up and down.

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <fstream>

#include "desk/document_watch.h"
#include "desk/unfinished_question.h"
#include "desktop_program/program_test.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/long_text.h"
#include "hosts/desktop/layouts/paper_view.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "hosts/desktop/screen/message_box.h"
#include "hosts/desktop/window/assistants.h"
#include "hosts/desktop/window/finder.h"
#include "hosts/desktop/window/packing_pane.h"
#include "hosts/desktop/window/paper_maker.h"
#include "support/documents.h"
#include "support/files/files.h"

namespace awizo::test {
namespace {

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

/// What lies on the smallest screen.
class SmallScreenTest : public EachTextSizeTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(QApplication::primaryScreen()->availableSize(), QSize(800, 600));
  }

  void openDocument() {
    open(offLineOptions());
    putLines(control().editor, 30);
    putPackages(control().editor, 3, [](int row) { return row == 1 ? 0 : 1; });
    form().grdPozycje.setCell(1, 3, "Молоко пастеризованное отборное, массовая доля жира 3,2 %");
    letLayoutsSettle();
  }

  static bool isSeenPart(const QWidget& part) {
    const auto* label = qobject_cast<const QLabel*>(&part);
    if (label != nullptr) return !label->text().isEmpty();
    return qobject_cast<const QLineEdit*>(&part) != nullptr ||
           qobject_cast<const QComboBox*>(&part) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&part) != nullptr ||
           qobject_cast<const QAbstractButton*>(&part) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&part) != nullptr ||
           dynamic_cast<const desktop::PaperView*>(&part) != nullptr;
  }
  /// The parts of a window that the user reads or acts on, those within others left out.
  static std::vector<QWidget*> partsOf(const QWidget& window) {
    std::vector<QWidget*> parts;
    for (auto* part : window.findChildren<QWidget*>()) {
      if (!part->isVisible() || part->window() != &window || !isSeenPart(*part)) continue;
      bool isWithin = false;
      for (QWidget* around = part->parentWidget(); around != &window && !isWithin;
           around = around->parentWidget()) {
        isWithin = isSeenPart(*around);
      }
      if (!isWithin) parts.push_back(part);
    }
    return parts;
  }
  static std::string nameOf(const QWidget& part) {
    const auto* label = qobject_cast<const QLabel*>(&part);
    return std::string(part.metaObject()->className()) + " " + part.objectName().toStdString() +
           (label == nullptr ? "" : " " + label->text().toStdString());
  }
  /// What scrolls with the part, else its window.
  static QWidget& sheetOf(QWidget& part) {
    for (QWidget* around = &part; !around->isWindow(); around = around->parentWidget()) {
      auto* area = qobject_cast<QScrollArea*>(around->parentWidget()->parentWidget());
      if (area != nullptr && area->widget() == around) return *around;
    }
    return *part.window();
  }
  static QRect placeOn(const QWidget& sheet, const QWidget& part) {
    return {part.mapTo(&sheet, QPoint()), part.size()};
  }

  /// The window lies on the screen, with room for its frame; nothing in it scrolls sideways but
  /// tables, and every part has the room that it needs, on what scrolls up and down.
  static void expectOnScreen(QWidget& window, const std::string& what) {
    SCOPED_TRACE(what);
    letLayoutsSettle();
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window.geometry()))
        << window.x() << " " << window.y() << " " << window.width() << " " << window.height();
    EXPECT_LE(window.height(), desktop::roomFor(window).height());
    EXPECT_LE(window.width(), desktop::roomFor(window).width());
    for (const auto* area : window.findChildren<QScrollArea*>()) {
      if (area->isVisible()) {
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
      }
    }
    const std::vector<QWidget*> parts = partsOf(window);
    EXPECT_FALSE(parts.empty());
    for (QWidget* part : parts) {
      const QWidget& sheet = sheetOf(*part);
      for (const QWidget* around = part; around != &sheet; around = around->parentWidget()) {
        const QWidget& holder = *around->parentWidget();
        EXPECT_TRUE(holder.rect().contains(placeOn(holder, *part)))
            << nameOf(*part) << " in " << nameOf(holder);
      }
      const auto* label = qobject_cast<const QLabel*>(part);
      const bool wraps = label != nullptr && label->wordWrap();
      const auto* button = qobject_cast<const QAbstractButton*>(part);
      if (wraps) {
        EXPECT_GE(part->height(), part->heightForWidth(part->width())) << nameOf(*part);
      } else if (button != nullptr) {
        const QString words = button->text().remove('&');
        EXPECT_GE(part->width(), part->fontMetrics().horizontalAdvance(words)) << nameOf(*part);
        EXPECT_GE(part->height(), button->text().isEmpty() ? 8 : part->fontMetrics().height());
      } else {
        EXPECT_GE(part->width(), part->minimumSizeHint().width()) << nameOf(*part);
        EXPECT_GE(part->height(), part->minimumSizeHint().height()) << nameOf(*part);
      }
      for (const QWidget* other : parts) {
        if (other == part) break;
        EXPECT_FALSE(placeOn(window, *part).intersects(placeOn(window, *other)))
            << nameOf(*part) << " and " << nameOf(*other);
      }
    }
  }

  /// What the act opens lies on the screen, and goes by Escape, whatever it asks then.
  void expectDialog(
      const std::string& what, const std::function<void()>& act,
      const std::function<void()>& inside = [] {}) {
    bool seen = false;
    then([&] {
      seen = true;
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr) << what;
      expectOnScreen(*dialog, what);
      inside();
      press(Qt::Key_Escape);
    });
    act();
    EXPECT_TRUE(seen) << what;
  }
};
INSTANTIATE_TEST_SUITE_P(Points, SmallScreenTest, testing::Values(9.0, 12.0, 16.0));

TEST_P(SmallScreenTest, HoldsTheDialogsOfLinesAndPackages) {
  openDocument();
  AwizoForm& main = form();
  expectDialog("a new line", [&] { main.btnDodaj.userClick(); });
  expectDialog(
      "a line", [&] { main.btnEdytuj.userClick(); },
      [&] {
        expectDialog("the quantity in a package", [&] { control().dlgDodaj.Command1.userClick(); });
        expectDialog("the countries of a line",
                     [&] { control().dlgDodaj.btnISOcodes.userClick(); });
      });
  expectDialog("a new package", [&] { main.btnDodajOpak.userClick(); });
  expectDialog("a package", [&] { main.btnEdytujOpak.userClick(); });
  expectDialog("the countries", [&] { main.Image2.userClick(); });
  expectDialog("several packages", [&] { widget().assistants().addPackages(); });
  expectDialog("the distribution", [&] { widget().assistants().distribute(); });
  expectDialog("the search", [&] { widget().finder().find(); });
  expectDialog("the faults", [&] { widget().finder().showFaults(); });
}

TEST_P(SmallScreenTest, HoldsTheFileDialogs) {
  openDocument();
  expectDialog("the folder", [&] { widget().askOffLineFolder(); });
  expectDialog("opening", [&] { form().btnWczytaj.userClick(); });
}

TEST_P(SmallScreenTest, HoldsTheDialogThatSaves) {
  openDocument();
  bool seen = false;
  form().txtNrZam.userType("417");
  form().txtCodeByBuyer.userType("417");
  form().txtNrAwiza.userType("ТН-6");
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr || QApplication::activeWindow() != top) return;
    if (qobject_cast<QMessageBox*>(top) != nullptr) {
      expectOnScreen(*top, "before saving");
      return press(Qt::Key_Return);
    }
    look.stop();
    seen = true;
    expectOnScreen(*top, "saving");
    press(Qt::Key_Escape);
  });
  look.start(10);
  form().btnZapisz.userClick();
  EXPECT_TRUE(seen);
}

TEST_P(SmallScreenTest, HoldsThePapersAndTheNumbers) {
  openDocument();
  for (const Paper paper : {Paper::labels, Paper::packingList, Paper::packageSheets}) {
    expectDialog(
        "papers", [&] { widget().paperMaker().show(paper); },
        [] {
          const auto* area = QApplication::activeModalWidget()->findChild<QScrollArea*>();
          EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << "the buttons are in sight";
        });
  }
  expectDialog("the numbers", [&] { widget().showNumberRange(); });
}

TEST_P(SmallScreenTest, HoldsTheStartPage) {
  Options options = offLineOptions();
  options.properties.clear();
  show(options);
  expectOnScreen(window(), "the start page");
  options.offLinePath.reset();
  options.settingsFile = (place.folder() / "other-settings").string();
  show(options);
  expectOnScreen(window(), "the start page without a folder");
  options.properties = {{"OnLine", "Off"}, {"PartnerILN", "1"}};
  options.offLinePath = place.folder().string();
  show(options);
  answerNext("ОК");
  waitForStartPage();
  expectOnScreen(window(), "the start page that says why");
}

TEST_P(SmallScreenTest, HoldsTheMenusAndThePackingPane) {
  openDocument();
  const auto* bar = window().menuBar();
  EXPECT_LE(bar->sizeHint().width(), window().width());
  for (const auto* menu : bar->findChildren<QMenu*>()) {
    EXPECT_LE(menu->sizeHint().width(), 800) << menu->title().toStdString();
    EXPECT_LE(menu->sizeHint().height(), 600) << menu->title().toStdString();
  }
  EXPECT_EQ(windowsArea().horizontalScrollBar()->maximum(), 0);
  press(Qt::Key_F6);
  letLayoutsSettle();
  desktop::PackingPane& pane = widget().packingPane();
  ASSERT_TRUE(pane.isVisible());
  EXPECT_EQ(windowsArea().horizontalScrollBar()->maximum(), 0) << "with the packing pane";
  EXPECT_FALSE(pane.lines()->visibleRegion().isEmpty());
  for (const QWidget* part :
       {static_cast<QWidget*>(pane.lines()), static_cast<QWidget*>(pane.packages())}) {
    EXPECT_GE(part->height(), part->fontMetrics().height() * 4);
  }
  press(Qt::Key_F6);
  letLayoutsSettle();
  EXPECT_EQ(windowsArea().horizontalScrollBar()->maximum(), 0) << "without it again";
}

TEST_P(SmallScreenTest, HoldsTheWordsBelowTheLinesAndThoseOfTheState) {
  openDocument();
  form().grdPozycje.userCell(1, 4);
  form().txtNrAwiza.userType("ТН-2026/000000000017");
  widget().watch().tell(
      "Сохранено в 23:14: c:\\home\\anna\\Документы\\Отгрузки\\Подтверждение_отгрузки_ТН-6.xml");
  form().txtNrZam.userType("1");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        const auto* standing = widget().findChild<QLabel*>("lblStanding");
        return standing->text().contains("Подтверждение");
      },
      5000));
  letLayoutsSettle();
  for (const char* name : {"lineStrip", "lblStanding"}) {
    const auto* words = widget().findChild<QLabel*>(name);
    ASSERT_NE(words, nullptr);
    EXPECT_FALSE(words->text().isEmpty());
    EXPECT_LE(
        words->fontMetrics().boundingRect(words->rect(), Qt::TextWordWrap, words->text()).height(),
        words->height())
        << name;
    EXPECT_TRUE(widget().rect().contains(placeOn(widget(), *words))) << name;
  }
}

TEST_P(SmallScreenTest, HoldsTheGuide) {
  openDocument();
  press(Qt::Key_F1);
  const auto* guide = window().findChild<QDialog*>("guide");
  ASSERT_NE(guide, nullptr);
  letLayoutsSettle();
  EXPECT_TRUE(guide->screen()->availableGeometry().contains(guide->geometry()));
  const auto* contents = guide->findChild<QListWidget*>();
  EXPECT_EQ(contents->horizontalScrollBar()->maximum(), 0);
  for (int row = 0; row < contents->count(); ++row) {
    const QRect area = contents->visualItemRect(contents->item(row));
    const QString words = contents->item(row)->text();
    EXPECT_LE(contents->fontMetrics()
                  .boundingRect(QRect(0, 0, area.width(), 10000), Qt::TextWordWrap, words)
                  .width(),
              contents->viewport()->width())
        << words.toStdString();
  }
}

/// The system's own messages, what varies in them as long as it is in the field.
std::vector<MessageBox> longBoxes() {
  std::vector<MessageBox> boxes;
  std::ifstream list(projectFolder() / "tests/messages.txt");
  for (std::string line; std::getline(list, line);) {
    const auto tab = line.find('\t');
    if (line.empty() || line.front() == '#' || tab == std::string::npos) continue;
    const auto filled = [](std::string text) {
      const auto replace = [&](const std::string& what, const std::string& by) {
        for (auto at = text.find(what); at != text.npos; at = text.find(what, at + by.size())) {
          text.replace(at, what.size(), by);
        }
      };
      replace("\\r", "\r");
      replace("\\n", "\n");
      replace("{}", "The download of the specified resource has failed: 4607000000116");
      return text;
    };
    MessageBox box;
    box.title = line.substr(0, tab);
    box.text = filled(line.substr(tab + 1));
    box.icon = BoxIcon::critical;
    box.error = 70;
    box.buttons = boxes.size() % 2 == 0 ? BoxButtons::ok : BoxButtons::yesNo;
    boxes.push_back(box);
  }
  return boxes;
}

TEST_P(SmallScreenTest, HoldsEveryMessageAndQuestion) {
  openDocument();
  const std::vector<MessageBox> boxes = longBoxes();
  ASSERT_GT(boxes.size(), 80U);
  for (const MessageBox& box : boxes) {
    expectDialog(box.text, [&] { desktop::askUser(box, &window()); });
  }
  form().OrderAnswer = true;
  form().txtNrAwiza.userType("ТН-2026/000000000017");
  expectDialog("before another document", [&] { widget().watch().mayTake(WayOut::open); });
  const journal::UnfinishedWork work{
      "record", {"ТН-2026/000000000017", "ЗК-1", "23:14", 1423, 1200, true}, true};
  const Question goOn = unfinishedQuestion(work);
  expectDialog("at the start", [&] { desktop::QuestionBox(goOn, &window()).exec(); });
}

}  // namespace
}  // namespace awizo::test
