#include <QApplication>
#include <QTimer>

#include "desktop_program/program_test.h"

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

}  // namespace
}  // namespace awizo::test
