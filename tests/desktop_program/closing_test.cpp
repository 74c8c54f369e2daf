#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QTimer>

#include "desktop_program/program_test.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

constexpr const char* question =
    "question|VIRD|Документ не отправлен и не сохранён после изменений.\n"
    "Закрыть его без сохранения?|&Да,&Нет";

class ClosingTest : public ProgramTest {
 protected:
  void closeSoon() {
    then([this] { window().close(); });
  }
};

TEST_F(ClosingTest, AnUntouchedDocumentClosesAtOnce) {
  open(offLineOptions());
  window().close();
  EXPECT_TRUE(isClosed());
}

TEST_F(ClosingTest, AChangedDocumentIsAskedAbout) {
  open(offLineOptions());
  type("ТН-1");
  std::string asked;
  answerNext("&Нет", &asked);
  window().close();
  EXPECT_EQ(asked, question);
  EXPECT_FALSE(isClosed());
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-1");
  answerNext("&Да");
  window().close();
  EXPECT_TRUE(isClosed());
}

TEST_F(ClosingTest, ADocumentThatWasChangedBackIsNotAskedAbout) {
  open(offLineOptions());
  type("1");
  press(Qt::Key_Backspace);
  window().close();
  EXPECT_TRUE(isClosed());
}

TEST_F(ClosingTest, AnOrderThatWasHandedOutForGoodIsAskedAbout) {
  const DemoService service(place.posted());
  agreeTo(service);
  open(onLineOptions(service));
  answerNext("&Нет");
  window().close();
  EXPECT_FALSE(isClosed());
  form().documentKept();
  window().close();
  EXPECT_TRUE(isClosed());
}

TEST_F(ClosingTest, ABoxThatWaitsGoesToo) {
  open(offLineOptions());
  closeSoon();
  press(Qt::Key_S, Qt::ControlModifier);
  waitForClosing();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ClosingTest, NestedDialogsGoToo) {
  open(offLineOptions());
  then([this] {
    EXPECT_TRUE(control().dlgDodaj.shown());
    then([this] {
      EXPECT_TRUE(control().dlgIsoCodes.shown());
      window().close();
    });
    control().dlgDodaj.btnISOcodes.userClick();
  });
  form().btnDodaj.userClick();
  waitForClosing();
  EXPECT_FALSE(control().dlgDodaj.shown());
  EXPECT_FALSE(control().dlgIsoCodes.shown());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ClosingTest, AnExchangeThatRunsIsCutOffWithoutABox) {
  const DemoService service(place.posted(), {"--fault", "catalogue=slow:20000"});
  agreeTo(service);
  show(onLineOptions(service));
  QTimer look;
  bool boxSeen = false;
  QObject::connect(&look, &QTimer::timeout, [&] {
    boxSeen = boxSeen || QApplication::activeModalWidget() != nullptr;
    if (widget().waiting().text() == "Загрузка каталога…") window().close();
  });
  look.start(10);
  waitForClosing();
  EXPECT_FALSE(boxSeen);
  EXPECT_FALSE(widget().isWorking());
}

TEST_F(ClosingTest, ASendingIsCutOffWhenTheUserLetsTheDocumentGo) {
  DemoService service(place.posted());
  agreeTo(service);
  open(onLineOptions(service));
  form().txtNrAwiza.userType("1");
  form().txtCodeByBuyer.userType("417");
  service.setFaults("upload=slow:20000");
  QTimer look;
  std::vector<std::string> boxes;
  const auto acceptNext = [&boxes] {
    then([&boxes] {
      boxes.push_back(seen(*openBox()));
      press(Qt::Key_Return);
    });
  };
  QObject::connect(&look, &QTimer::timeout, [&] {
    if (!widget().waiting().lasts()) return;
    look.stop();
    acceptNext();
    window().close();
  });
  acceptNext();
  look.start(10);
  press(Qt::Key_F9);
  waitForClosing();
  ASSERT_EQ(boxes.size(), 2u) << "no box tells of the exchange that was cut off";
  EXPECT_EQ(boxes.back(), question);
  EXPECT_FALSE(widget().isWorking());
}

TEST_F(ClosingTest, TheFileDialogGoesToo) {
  open(offLineOptions());
  then([this] {
    EXPECT_TRUE(control().dlgWczytajZapisz.shown());
    window().close();
  });
  press(Qt::Key_O, Qt::ControlModifier);
  waitForClosing();
  EXPECT_FALSE(control().dlgWczytajZapisz.shown());
}

TEST_F(ClosingTest, AnOpenListGoesToo) {
  open(offLineOptions());
  auto* list = qobject_cast<QComboBox*>(face(form().comboCountry).widget());
  list->showPopup();
  settle();
  EXPECT_TRUE(list->view()->isVisible());
  window().close();
  waitForClosing();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ClosingTest, WhatStandsInTheOpenInTableEditorIsAskedAbout) {
  const DemoService service(place.posted());
  agreeTo(service);
  open(onLineOptions(service));
  form().documentKept();
  tabTo(form().grdPozycje);
  form().grdPozycje.userCell(1, GRD_POZ_QTY_DESPATCHED);
  press(Qt::Key_Return);
  ASSERT_TRUE(form().txtEdycja.visible());
  press(Qt::Key_A, Qt::ControlModifier);
  type("5");
  std::string asked;
  answerNext("&Нет", &asked);
  window().close();
  EXPECT_EQ(asked, question);
  EXPECT_FALSE(isClosed());
}

}  // namespace
}  // namespace awizo::test
