#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QTimer>
#include <filesystem>

#include "desk/document_watch.h"
#include "desktop_program/program_test.h"
#include "journal/history.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

constexpr const char* question =
    "question|VIRD|Документ ТН-1 не отправлен и не сохранён после изменений.\n"
    "В сохранённом файле не остаётся, что в какой упаковке лежит: после открытия товар упаковывают "
    "заново.|&Сохранить…,&Не сохранять,&Отмена";

/// Answers the box that is open by its button of this caption.
void answerOpen(const QString& words) {
  for (QAbstractButton* button : openBox()->buttons()) {
    if (button->text() == words) return click(button);
  }
  ADD_FAILURE() << "no such button: " << words.toStdString();
}

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
  answerNext("&Отмена", &asked);
  window().close();
  EXPECT_EQ(asked, question);
  EXPECT_FALSE(isClosed());
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-1");
  answerNext("&Не сохранять");
  window().close();
  EXPECT_TRUE(isClosed());
}

TEST_F(ClosingTest, NeitherEnterNorEscapeLosesAChangedDocument) {
  open(offLineOptions());
  type("ТН-1");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    int boxes = 0;
    then([&] {
      ++boxes;
      EXPECT_NE(openBox(), nullptr);
      press(key);
    });
    window().close();
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(isClosed());
  }
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-1");
}

TEST_F(ClosingTest, SavesByTheControlsOwnRoadAndThenCloses) {
  open(offLineOptions());
  type("ТН-1");
  form().txtNrZam.userType("ЗК-1");
  form().txtCodeByBuyer.userType("417");
  const std::string file = (place.folder() / "kept.xml").string();
  std::vector<std::string> boxes;
  const auto nameFile = [&] {
    DlgWczytajZapisz& dialog = control().dlgWczytajZapisz;
    dialog.txtAwizoPlik.userType(file);
    dialog.ImageZapisz.userClick();
  };
  const auto sendUnpacked = [&] {
    boxes.push_back(seen(*openBox()));
    then(nameFile);
    press(Qt::Key_Return);
  };
  then([&] {
    boxes.push_back(seen(*openBox()));
    then(sendUnpacked);
    answerOpen("&Сохранить…");
  });
  const std::vector<std::string> others = answerWithEnter([&] { window().close(); });
  EXPECT_THAT(others, ::testing::IsEmpty());
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes.front(), question);
  EXPECT_TRUE(std::filesystem::exists(place.folder() / "kept.xml"));
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
  std::string asked;
  answerNext("&Отмена", &asked);
  window().close();
  EXPECT_NE(asked.find("Заказ ЗК-2026/1147 служба выдала и второй раз не выдаст."), asked.npos);
  EXPECT_FALSE(isClosed());
  form().deeds.tell({Deed::Kind::sent});
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

/// While the exchange of these words runs, the user closes the window.
class ClosingWhileWorking : public ClosingTest {
 protected:
  static constexpr const char* fetching = "Получение заказа…";
  static constexpr const char* sending = "Отправка документа…";

  /// Calls `act` each time the event loop of the exchange turns.
  void whileWorking(const char* words, const std::function<void()>& act) {
    QObject::connect(&look_, &QTimer::timeout, [this, words, act] {
      if (widget().waiting().lasts() && widget().waiting().text() == words) act();
    });
    look_.start(10);
  }
  static QMessageBox* question() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  }
  void stopLooking() { look_.stop(); }

 private:
  QTimer look_;
};

TEST_F(ClosingWhileWorking, AnOrderThatComesIsAskedAboutAndASecondClosingCloses) {
  const DemoService service(place.posted(), {"--fault", "order=slow:20000"});
  agreeTo(service);
  show(onLineOptions(service));
  std::vector<std::string> seenBoxes;
  whileWorking(fetching, [&] {
    if (question() != nullptr && seenBoxes.empty()) seenBoxes.push_back(seen(*question()));
    window().close();
  });
  waitForClosing();
  EXPECT_THAT(seenBoxes,
              ::testing::ElementsAre("question|VIRD|Служба выдаёт заказ. Если закрыть окно сейчас, "
                                     "заказ может пропасть: второй раз его не выдадут.|&Подождать,"
                                     "&Закрыть сейчас"));
  EXPECT_FALSE(widget().isWorking());
}

TEST_F(ClosingWhileWorking, TheUserMayCloseAtOnce) {
  const DemoService service(place.posted(), {"--fault", "order=slow:20000"});
  agreeTo(service);
  show(onLineOptions(service));
  whileWorking(fetching, [&] {
    if (question() == nullptr) return static_cast<void>(window().close());
    stopLooking();
    answerOpen("&Закрыть сейчас");
  });
  waitForClosing();
  EXPECT_FALSE(widget().isWorking());
}

TEST_F(ClosingWhileWorking, TheUserMayWaitAndTheOrderComes) {
  const DemoService service(place.posted(), {"--fault", "order=slow:1500"});
  agreeTo(service);
  show(onLineOptions(service));
  bool asked = false;
  whileWorking(fetching, [&] {
    if (question() == nullptr) return static_cast<void>(window().close());
    asked = true;
    stopLooking();
    press(Qt::Key_Return);
  });
  waitForStart();
  EXPECT_TRUE(asked);
  EXPECT_FALSE(isClosed());
  EXPECT_EQ(form().txtNrZam.text(), "ЗК-2026/1147");
}

TEST_F(ClosingWhileWorking, AQuestionThatNobodyAnswersGoesWithTheWork) {
  const DemoService service(place.posted(), {"--fault", "order=slow:1000"});
  agreeTo(service);
  show(onLineOptions(service));
  whileWorking(fetching, [&] {
    stopLooking();
    window().close();
  });
  waitForStart();
  EXPECT_EQ(question(), nullptr);
  EXPECT_FALSE(isClosed());
  EXPECT_EQ(form().txtNrZam.text(), "ЗК-2026/1147");
}

TEST_F(ClosingWhileWorking, ASendingIsCutOffWhenTheUserClosesAllTheSame) {
  DemoService service(place.posted());
  agreeTo(service);
  open(onLineOptions(service));
  form().txtNrAwiza.userType("1");
  form().txtCodeByBuyer.userType("417");
  service.setFaults("upload=slow:20000");
  std::string asked;
  whileWorking(sending, [&] {
    if (question() == nullptr) return static_cast<void>(window().close());
    asked = seen(*question());
    stopLooking();
    answerOpen("&Закрыть сейчас");
  });
  then([] { press(Qt::Key_Return); });
  press(Qt::Key_F9);
  waitForClosing();
  EXPECT_NE(asked.find("Документ отправляется."), asked.npos);
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
  form().deeds.tell({Deed::Kind::sent});
  tabTo(form().grdPozycje);
  form().grdPozycje.userCell(1, GRD_POZ_QTY_DESPATCHED);
  press(Qt::Key_Return);
  ASSERT_TRUE(form().txtEdycja.visible());
  press(Qt::Key_A, Qt::ControlModifier);
  type("5");
  std::string asked;
  answerNext("&Отмена", &asked);
  window().close();
  EXPECT_NE(asked.find("не отправлен и не сохранён после изменений"), asked.npos);
  EXPECT_FALSE(isClosed());
}

/// A user at unsent work, by the window's own commands.
class WaysOutTest : public ProgramTest {
 protected:
  void work() {
    open(offLineOptions());
    type("ТН-1");
    control().form.btnWczytaj.onClick = [this] { ++opened_; };
  }
  /// The box that the act brings, answered by Enter.
  std::string boxOf(const std::function<void()>& act) {
    const std::vector<std::string> boxes = answerWithEnter(act);
    EXPECT_EQ(boxes.size(), 1U);
    return boxes.empty() ? "" : boxes.front();
  }
  int opened_ = 0;
};

TEST_F(WaysOutTest, AreAskedAboutByKeyMenuAndButton) {
  work();
  const std::vector<std::function<void()>> ways = {
      [] { press(Qt::Key_O, Qt::ControlModifier); },
      [this] { commands().action(form().btnWczytaj)->trigger(); },
      [this] { click(face(form().btnWczytaj)); }, [this] { window().startAgain(); }};
  for (const auto& way : ways) {
    EXPECT_NE(boxOf(way).find("Документ ТН-1 не отправлен"), std::string::npos);
  }
  EXPECT_EQ(opened_, 0);
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-1");
  answerNext("&Не сохранять");
  press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(opened_, 1);
}

TEST_F(WaysOutTest, AScriptsActsGoToTheControlUnasked) {
  work();
  form().btnWczytaj.userClick();
  EXPECT_EQ(opened_, 1);
}

TEST_F(WaysOutTest, TitleAndStatusSayHowTheDocumentStands) {
  work();
  EXPECT_TRUE(QTest::qWaitFor([&] { return window().windowTitle() == "ТН-1 *"; }));
  form().deeds.tell({Deed::Kind::saved, "c:\\ТН-1.xml"});
  EXPECT_TRUE(QTest::qWaitFor([&] { return window().windowTitle() == "ТН-1"; }));
  EXPECT_EQ(shownText(widget().findChild<QWidget*>("lblStanding")),
            "Сохранено в 10:15: c:\\ТН-1.xml");
}

TEST_F(WaysOutTest, ADocumentThatMayHaveArrivedIsAskedAboutBeforeItGoesAgain) {
  const DemoService service(place.posted());
  agreeTo(service);
  open(onLineOptions(service));
  int sendings = 0;
  form().btnPrzeslij.onClick = [&] { ++sendings; };
  press(Qt::Key_F9);
  EXPECT_EQ(sendings, 1);
  form().deeds.tell({Deed::Kind::unanswered});
  const std::string asked = boxOf([] { press(Qt::Key_F9); });
  EXPECT_NE(asked.find("он мог дойти"), asked.npos);
  EXPECT_EQ(sendings, 1);
  answerNext("Отправить &ещё раз");
  click(face(form().btnPrzeslij));
  EXPECT_EQ(sendings, 2);
}

/// Nobody can call a document back: what is taken back since changes nothing about that, and no
/// step leads to before it.
TEST_F(WaysOutTest, ADocumentThatMayHaveArrivedStaysSoHoweverMuchIsTakenBack) {
  const DemoService service(place.posted());
  agreeTo(service);
  open(onLineOptions(service));
  form().txtNrAwiza.userType("ТН-1");
  form().btnPrzeslij.onClick = [&] { form().deeds.tell({Deed::Kind::unanswered}); };
  press(Qt::Key_F9);
  EXPECT_EQ(widget().history().toTakeBack(), nullptr);
  form().txtGoodsIdentity.userType("1");
  ASSERT_NE(widget().history().toTakeBack(), nullptr);
  widget().takeBack();
  EXPECT_EQ(form().txtGoodsIdentity.text(), "0");
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-1");
  EXPECT_TRUE(widget().watch().title().ends_with(" (мог дойти)"));
  EXPECT_NE(boxOf([] { press(Qt::Key_F9); }).find("он мог дойти"), std::string::npos);
}

}  // namespace
}  // namespace awizo::test
