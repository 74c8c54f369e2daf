#include "desk/document_watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/on_line_start_fixture.h"
#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// A user who answers the watch's questions from a list and is asked nothing else.
struct Answering {
  explicit Answering(DocumentWatch& watch) {
    watch.ask = [this](const Question& question) {
      asked.push_back(question);
      return answer;
    };
  }

  Choice answer = Choice::cancel;
  std::vector<Question> asked;
};

class WatchOffLine : public ::testing::Test {
 protected:
  WatchOffLine() { desk.files.putFolder("c:\\docs"); }

  /// What a document needs to be saved as it is.
  void fillHeader() {
    desk.form.txtNrAwiza.userType("ТН-6");
    desk.form.txtNrZam.userType("ЗК-1");
    desk.form.txtCodeByBuyer.userType("417");
  }
  void nameFile(const std::string& path) {
    desk.face.answer(Answer::yes);
    desk.face.onModal([this, path] {
      desk.control.dlgWczytajZapisz.txtAwizoPlik.userType(path);
      desk.control.dlgWczytajZapisz.ImageZapisz.userClick();
    });
  }

  Desk desk;
  DocumentWatch watch{desk.control, desk.clock};
  Answering user{watch};
};

TEST_F(WatchOffLine, LetsAnUntouchedDocumentGoUnasked) {
  for (const WayOut way : {WayOut::open, WayOut::close, WayOut::startAgain}) {
    EXPECT_TRUE(watch.mayTake(way));
  }
  EXPECT_TRUE(user.asked.empty());
}

TEST_F(WatchOffLine, AsksBeforeEveryWayOutOfUnsentWorkWithCancelAsTheHarmlessChoice) {
  desk.form.txtNrAwiza.userType("ТН-6");
  for (const WayOut way : {WayOut::open, WayOut::close, WayOut::startAgain}) {
    EXPECT_FALSE(watch.mayTake(way));
    const Question& question = user.asked.back();
    EXPECT_THAT(question.choices, ElementsAre(Choice::save, Choice::letGo, Choice::cancel));
    EXPECT_EQ(question.harmless, Choice::cancel);
    EXPECT_THAT(question.text,
                HasSubstr("Документ ТН-6 не отправлен и не сохранён после изменений."));
    EXPECT_THAT(question.text, HasSubstr("что в какой упаковке лежит"));
    EXPECT_THAT(question.text, Not(HasSubstr("второй раз")));
  }
  user.answer = Choice::letGo;
  EXPECT_TRUE(watch.mayTake(WayOut::close));
  EXPECT_EQ(user.asked.size(), 4U);
}

TEST_F(WatchOffLine, WithoutAHostThatAsksNothingIsLost) {
  watch.ask = nullptr;
  desk.form.txtNrAwiza.userType("ТН-6");
  EXPECT_FALSE(watch.mayTake(WayOut::close));
}

TEST_F(WatchOffLine, GoesOnAfterSavingOnlyWhenItWasSaved) {
  desk.form.txtNrAwiza.userType("ТН-6");
  user.answer = Choice::save;
  EXPECT_FALSE(watch.mayTake(WayOut::close)) << "the control refuses a header without a code";
  EXPECT_EQ(desk.takeBoxes().size(), 1U);
  fillHeader();
  desk.face.answer(Answer::yes);
  desk.closeNextForm();
  EXPECT_FALSE(watch.mayTake(WayOut::close)) << "the user has closed the file dialog";
  nameFile("c:\\docs\\ТН-6.xml");
  EXPECT_TRUE(watch.mayTake(WayOut::close));
  EXPECT_TRUE(desk.files.has("c:\\docs\\ТН-6.xml"));
  desk.takeBoxes();
}

TEST_F(WatchOffLine, OffersNoSavingUnderAnOpenDialog) {
  desk.form.txtNrAwiza.userType("ТН-6");
  desk.face.onModal([&](Form& dialog) {
    EXPECT_FALSE(watch.mayTake(WayOut::close));
    dialog.userClose();
  });
  desk.form.btnDodaj.userClick();
  ASSERT_EQ(user.asked.size(), 1U);
  EXPECT_THAT(user.asked.front().choices, ElementsAre(Choice::letGo, Choice::cancel));
}

TEST_F(WatchOffLine, SaysThatASavedDocumentWouldLoseItsPacking) {
  fillHeader();
  desk.addPackage({.description = "Паллета"});
  nameFile("c:\\docs\\ТН-6.xml");
  desk.form.btnZapisz.userPress();
  EXPECT_FALSE(watch.mayTake(WayOut::close));
  ASSERT_EQ(user.asked.size(), 1U);
  EXPECT_THAT(user.asked.front().text, HasSubstr("Документ ТН-6 сохранён, но не отправлен."));
  EXPECT_THAT(user.asked.front().choices, ElementsAre(Choice::goOn, Choice::cancel));
  user.answer = Choice::goOn;
  EXPECT_TRUE(watch.mayTake(WayOut::close));
  desk.form.deeds.tell({Deed::Kind::sent});
  EXPECT_TRUE(watch.mayTake(WayOut::close));
  EXPECT_EQ(user.asked.size(), 2U) << "what was sent may go";
  desk.takeBoxes();
}

TEST_F(WatchOffLine, AsksBeforeTheButtonThatOpensAFileAndBeforeNoOther) {
  desk.form.txtNrAwiza.userType("ТН-6");
  for (const Button* button : {static_cast<Button*>(&desk.form.btnZapisz),
                               static_cast<Button*>(&desk.form.btnPrzeslij), &desk.form.btnDodaj}) {
    EXPECT_TRUE(watch.mayPress(*button));
  }
  EXPECT_TRUE(user.asked.empty());
  EXPECT_FALSE(watch.mayPress(desk.form.btnWczytaj));
  EXPECT_THAT(user.asked.at(0).text, HasSubstr("Открытый файл займёт место этого документа."));
  desk.form.setEnabled(false);
  EXPECT_TRUE(watch.mayPress(desk.form.btnWczytaj)) << "what can't be pressed asks nothing";
  EXPECT_EQ(user.asked.size(), 1U);
}

TEST_F(WatchOffLine, TheTitleNamesDocumentAndOrderAndMarksWhatIsUnsaved) {
  EXPECT_EQ(watch.title(), "Подтверждение отгрузки");
  desk.form.txtNrZam.userType("ЗК-1");
  EXPECT_EQ(watch.title(), "Без номера — ЗК-1 *");
  desk.form.txtNrAwiza.userType("ТН-6");
  EXPECT_EQ(watch.title(), "ТН-6 — ЗК-1 *");
  desk.form.deeds.tell({Deed::Kind::saved, "c:\\ТН-6.xml"});
  EXPECT_EQ(watch.title(), "ТН-6 — ЗК-1");
  desk.form.txtNrZam.userType("");
  EXPECT_EQ(watch.title(), "ТН-6 *");
}

TEST_F(WatchOffLine, TheStatusSaysWhatWasDoneLast) {
  EXPECT_EQ(watch.status(), "");
  desk.form.txtNrAwiza.userType("ТН-6");
  const auto after = [&](const Deed& deed) {
    desk.form.deeds.tell(deed);
    return watch.status();
  };
  EXPECT_EQ(after({Deed::Kind::saved, "c:\\a.xml"}), "Сохранено в 10:15: c:\\a.xml");
  EXPECT_EQ(after({Deed::Kind::sent}), "Отправлено в 10:15 ТН-6");
  EXPECT_EQ(after({Deed::Kind::read, "c:\\a.xml"}), "Открыт в 10:15: c:\\a.xml");
  EXPECT_EQ(after({Deed::Kind::notRead, "c:\\a.xml"}), "Не удалось открыть: c:\\a.xml");
  EXPECT_EQ(after({.kind = Deed::Kind::filled, .lines = 3}), "Заполнено строк: 3");
}

TEST_F(WatchOffLine, TellsItsHostOfEveryDeed) {
  int told = 0;
  watch.onDeed = [&] { ++told; };
  desk.form.deeds.tell({Deed::Kind::sent});
  EXPECT_EQ(told, 1);
}

class WatchOnLine : public OnLineStart {
 protected:
  void startWithOrder() { startWith("<none/>", "<none/>", orderReply(orderLine("1", "2"))); }
  /// Fills what the header needs and sends; the user agrees to all that the control asks.
  void send() {
    form.txtNrAwiza.userType("ТН-6");
    form.txtCodeByBuyer.userType("417");
    face.answer(Answer::yes);
    form.btnPrzeslij.userPress();
  }

  DocumentWatch watch{control, clock};
  Answering user{watch};
};

TEST_F(WatchOnLine, SaysThatTheServiceGivesAnOrderOnlyOnce) {
  startWithOrder();
  EXPECT_EQ(watch.title(), "Без номера — Z-1 *");
  EXPECT_EQ(watch.status(), "Получен в 10:15 заказ Z-1, строк: 1");
  EXPECT_FALSE(watch.mayTake(WayOut::startAgain));
  EXPECT_THAT(user.asked.at(0).text, HasSubstr("Заказ Z-1 служба выдала и второй раз не выдаст."));
}

TEST_F(WatchOnLine, SaysThatNoOrderWaits) {
  startWith("<none/>", "<none/>", "<receive-document-response/>");
  EXPECT_EQ(watch.status(), "Ни один заказ не ждёт.");
}

TEST_F(WatchOnLine, KeepsWhyTheStartWasRefused) {
  http.reply("<no-partner/>");
  start();
  EXPECT_EQ(watch.refusal(), "Неправильный формат XML партнёр инфо.");
}

TEST_F(WatchOnLine, MarksADocumentWhoseAnswerNeverCameAndAsksBeforeItGoesAgain) {
  startWithOrder();
  EXPECT_TRUE(watch.mayPress(form.btnPrzeslij));
  http.fail(errors::downloadFailed());
  send();
  EXPECT_EQ(watch.title(), "ТН-6 — Z-1 * (мог дойти)");
  EXPECT_EQ(watch.status(), "Отправлено в 10:15 без ответа службы: документ ТН-6 мог дойти");
  EXPECT_FALSE(watch.mayPress(form.btnPrzeslij));
  EXPECT_THAT(user.asked.at(0).choices, ElementsAre(Choice::send, Choice::cancel));
  EXPECT_THAT(user.asked.at(0).text, HasSubstr("он мог дойти"));
  user.answer = Choice::send;
  EXPECT_TRUE(watch.mayPress(form.btnPrzeslij));
  http.reply(
      "<send-document-response><submission-status>OK</submission-status>"
      "</send-document-response>");
  send();
  EXPECT_EQ(watch.title(), "ТН-6 — Z-1");
  EXPECT_TRUE(watch.mayPress(form.btnPrzeslij));
  EXPECT_EQ(user.asked.size(), 2U);
}

TEST_F(WatchOnLine, DoesNotMarkADocumentThatReachedNobodyOrWasRefused) {
  startWithOrder();
  send();
  EXPECT_EQ(watch.title(), "ТН-6 — Z-1 *") << "there was nobody at the other end";
  http.reply(
      "<send-document-response><submission-status>ERROR</submission-status>"
      "</send-document-response>");
  send();
  EXPECT_EQ(watch.title(), "ТН-6 — Z-1 *");
}

TEST_F(WatchOnLine, AsksBeforeClosingOnlyWhileAnOrderComesOrADocumentGoes) {
  std::vector<std::optional<Exchange>> asking;
  const auto look = [&] {
    if (const auto question = watch.questionWhileWorking()) {
      EXPECT_THAT(question->choices, ElementsAre(Choice::wait, Choice::leave));
      EXPECT_EQ(question->harmless, Choice::wait);
      asking.push_back(session.RunningExchange);
    }
  };
  http.whileSending = look;
  startWithOrder();
  http.fail(errors::downloadFailed());
  send();
  look();
  EXPECT_THAT(asking, ElementsAre(Exchange::order, Exchange::sending));
}

TEST_F(WatchOffLine, NamesWhereDocumentsGoOnLineAlone) {
  desk.form.UploadUrl = "http://firm.example/upload";
  EXPECT_EQ(watch.address(), "");
  desk.control.setOnLine("On");
  EXPECT_EQ(watch.address(), "http://firm.example/upload");
}

}  // namespace
}  // namespace awizo::test
