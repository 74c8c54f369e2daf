#include "service/upper/sending/sending.h"

#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string plainQuestion =
    "VIRD|question|YesNo|Выслать составленный документ подтверждения отгрузки?";
const std::string repeatQuestion =
    "VIRD|question|YesNo|Вы пытаетесь отослать документ с уже существующим номером.\\r"
    "Продолжить?";
const std::string packingQuestion =
    "VIRD|none|YesNo|Отгруженный товар упакован не полностью.\\r\\n"
    "Вы уверены, что хотите отправить документ в таком виде?";
const std::string sentBox = "VIRD|information|OK|Документ отправлен.";
const std::string accepted =
    "<send-document-response><submission-status>OK</submission-status></send-document-response>";

/// A user with a document of one line, wholly packed, on line.
class Sending : public ::testing::Test, public TestEditor {
 protected:
  Sending() {
    form.UploadUrl = "http://firm.example/app/partner/Upload.aspx";
    form.txtNrAwiza.setText("WZ-1");
    form.txtNrZam.setText("Z-1");
    session.LineCount = 1;
    form.grdPozycje.setCell(1, GRD_POZ_LP, "1");
    form.grdPozycje.setCell(1, GRD_POZ_EAN, "4607000000116");
    form.grdPozycje.setCell(1, GRD_POZ_QTY_ORDERED, "5,000");
    form.grdPozycje.setCell(1, GRD_POZ_QTY_DESPATCHED, "5,000");
    form.grdPozycje.setCell(1, GRD_POZ_PACK_REFS, "2@Паллета@1@5,000");
    form.grdPozycje.setCell(1, GRD_POZ_PACKED_QTY, "5,000");
    session.IloscPozycjiOpak = 1;
    form.grdOpakowania.setCell(1, GRD_OPAK_SERIAL, "2");
    form.grdOpakowania.setCell(1, GRD_OPAK_DESC, "Паллета");
  }

  void packOnlyPart() { form.grdPozycje.setCell(1, GRD_POZ_PACKED_QTY, "4,000"); }
  void send() { btnPrzeslij_Click(editor); }
  std::vector<std::string> takeBoxes() { return describe(face.takeBoxes()); }
};

TEST_F(Sending, AsksPostsTheDocumentAndTellsThatItWasSent) {
  face.answer(Answer::yes);
  http.reply(accepted);
  session.SessionCookie = "SID=abc";
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion, sentBox));
  EXPECT_THAT(face.works(), ElementsAre("Отправка документа…"));
  ASSERT_EQ(http.sent.size(), 1U);
  EXPECT_EQ(http.sent[0].url, "http://firm.example/app/partner/Upload.aspx");
  EXPECT_THAT(http.sent[0].body, HasSubstr("<DespatchAdviceNumber>WZ-1</DespatchAdviceNumber>"));
  EXPECT_EQ(form.LastSentNumber, "WZ-1");
}

TEST_F(Sending, AtNoSendsNothing) {
  face.answer(Answer::no);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion));
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_EQ(form.LastSentNumber, "");
}

TEST_F(Sending, WaitsWithTheControlDisabledUntilAllIsDone) {
  face.answer(Answer::yes);
  http.reply(accepted);
  bool disabledAtQuestion = false;
  bool disabledAtEnd = false;
  face.whileBoxIsOpen([&](const MessageBox&) {
    disabledAtQuestion = !form.enabled() && screen.cursor() == Cursor::wait;
  });
  face.whileBoxIsOpen([&](const MessageBox&) {
    disabledAtEnd = !form.enabled() && screen.cursor() == Cursor::wait;
  });
  send();
  EXPECT_TRUE(disabledAtQuestion);
  EXPECT_TRUE(disabledAtEnd);
  EXPECT_TRUE(form.enabled());
  EXPECT_EQ(face.cursors(), (std::vector<Cursor>{Cursor::wait, Cursor::normal}));
}

TEST_F(Sending, GivesBackTheCursorThatWasThere) {
  screen.setCursor(Cursor::wait);
  face.answer(Answer::no);
  send();
  EXPECT_EQ(screen.cursor(), Cursor::wait);
}

TEST_F(Sending, StopsAtAHeaderThatIsNotValid) {
  form.txtNrAwiza.setText("");
  session.LineCount = 0;
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre("VIRD|exclamation|OK|В поле Номер Документа вводите номер "
                                       "распечатанной товарной накладной"));
  EXPECT_THAT(face.cursors(), IsEmpty());
  EXPECT_TRUE(form.enabled());
}

TEST_F(Sending, RefusesADocumentWithoutLines) {
  session.LineCount = 0;
  session.SendQuestionAsked = true;
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre("VIRD|exclamation|OK|Нет позиции в документе ."));
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_THAT(face.cursors(), IsEmpty());
  EXPECT_TRUE(session.SendQuestionAsked);
}

TEST_F(Sending, AsksOnlyAboutThePackingOfADocumentPackedInPart) {
  packOnlyPart();
  face.answer(Answer::yes);
  http.reply(accepted);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(packingQuestion, sentBox));
  EXPECT_FALSE(session.AllPacked);
  EXPECT_TRUE(session.SendQuestionAsked);
}

TEST_F(Sending, AtNoToThePackingDoesNothingMore) {
  packOnlyPart();
  face.answer(Answer::no);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(packingQuestion));
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_THAT(face.cursors(), IsEmpty());
  EXPECT_TRUE(form.enabled());
  EXPECT_TRUE(session.SendQuestionAsked);
}

TEST_F(Sending, FindsOutAnewEachTimeWhetherAllIsPacked) {
  packOnlyPart();
  face.answer(Answer::no);
  send();
  form.grdPozycje.setCell(1, GRD_POZ_PACKED_QTY, "5,000");
  face.answer(Answer::no);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(packingQuestion, plainQuestion));
  EXPECT_TRUE(session.AllPacked);
  EXPECT_FALSE(session.SendQuestionAsked);
}

TEST_F(Sending, AsksBeforeTheSameNumberGoesOutAgain) {
  face.answer(Answer::yes);
  http.reply(accepted);
  send();
  face.answer(Answer::yes);
  http.reply(accepted);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion, sentBox, repeatQuestion, sentBox));
  form.txtNrAwiza.setText("WZ-2");
  face.answer(Answer::yes);
  http.reply(accepted);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion, sentBox));
  EXPECT_EQ(form.LastSentNumber, "WZ-2");
}

TEST_F(Sending, TakesTheNumberAsSentOnlyWhenTheUserHasReadSo) {
  form.LastSentNumber = "WZ-0";
  face.answer(Answer::yes);
  http.reply(accepted);
  std::string atSentBox;
  face.whileBoxIsOpen([](const MessageBox&) {});  // the question
  face.whileBoxIsOpen([&](const MessageBox&) { atSentBox = form.LastSentNumber; });
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion, sentBox));
  EXPECT_EQ(atSentBox, "WZ-0");
  EXPECT_EQ(form.LastSentNumber, "WZ-1");
}

TEST_F(Sending, AtNoToTheRepeatedNumberSendsNothing) {
  form.LastSentNumber = "WZ-1";
  bool painted = false;
  for (Table* table : {&form.grdPozycje, &form.grdSuma}) {
    table->observers.add([&](const Change&) { painted = true; });
  }
  face.answer(Answer::no);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(repeatQuestion));
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_FALSE(painted);
  EXPECT_TRUE(form.enabled());
  EXPECT_EQ(screen.cursor(), Cursor::normal);
}

TEST_F(Sending, AsksAboutTheRepeatedNumberEvenAfterThePacking) {
  packOnlyPart();
  form.LastSentNumber = "WZ-1";
  face.answer(Answer::yes);
  face.answer(Answer::yes);
  http.reply(accepted);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(packingQuestion, repeatQuestion, sentBox));
}

TEST_F(Sending, ANumberInOtherLettersIsAnotherNumber) {
  form.LastSentNumber = "wz-1";
  face.answer(Answer::no);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion));
}

TEST_F(Sending, PaintsTheTablesAnewBeforeARepeatedNumberGoesOut) {
  form.LastSentNumber = "WZ-1";
  std::vector<std::string> painted;
  form.grdPozycje.observers.add([&](const Change&) { painted.push_back("grdPozycje"); });
  form.grdSuma.observers.add([&](const Change&) { painted.push_back("grdSuma"); });
  face.answer(Answer::yes);
  http.reply(accepted);
  send();
  EXPECT_THAT(painted, ElementsAre("grdPozycje", "grdSuma"));
}

TEST_F(Sending, ShowsTheServicesErrorAndLeavesTheNumberUnsent) {
  face.answer(Answer::yes);
  http.reply(
      "<send-document-response><submission-status>Нет такого заказа</submission-status>"
      "</send-document-response>");
  send();
  EXPECT_THAT(takeBoxes(),
              ElementsAre(plainQuestion, "VIRD|critical|OK|Произошла ошибка:Нет такого заказа"));
  EXPECT_EQ(form.LastSentNumber, "");
  face.answer(Answer::no);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion));
}

TEST_F(Sending, ShowsTheMarkerForAReplyWithoutAStatus) {
  for (const char* reply : {"", "garbage", "<send-document-response/>"}) {
    face.answer(Answer::yes);
    http.reply(reply);
    send();
    EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion, "VIRD|critical|OK|Произошла ошибка:-1"));
  }
}

TEST_F(Sending, ShowsAnEmptyStatusAsAnError) {
  face.answer(Answer::yes);
  http.reply("<send-document-response><submission-status/></send-document-response>");
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion, "VIRD|critical|OK|Произошла ошибка:"));
}

TEST_F(Sending, TellsOfAServiceThatHangsUp) {
  face.answer(Answer::yes);
  http.fail(errors::downloadFailed());
  send();
  EXPECT_THAT(takeBoxes(),
              ElementsAre(plainQuestion,
                          "Bі№d w SendXMLDOMRequest()!|critical|OK|"
                          "The download of the specified resource has failed.",
                          "Bі№d w SendXMLDOMRequest()!|critical|OK|"
                          "The data necessary to complete this operation is not yet available.",
                          "VIRD|critical|OK|Произошла ошибка:-1"));
  EXPECT_TRUE(form.enabled());
}

TEST_F(Sending, SaysNothingMoreWhenTheWriterRefusesTheContent) {
  form.grdPozycje.setCell(1, GRD_POZ_EAN, "A&B");
  send();
  const std::vector<std::string> boxes = takeBoxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_THAT(boxes[0], ::testing::StartsWith("Произошла ошибка в MakeDesAdv()10|critical"));
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_TRUE(form.enabled());
  EXPECT_EQ(screen.cursor(), Cursor::normal);
}

TEST_F(Sending, OffLineBuildsTheDocumentAndSendsNothing) {
  form.OnLine = "Off";
  send();
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_EQ(face.cursors(), (std::vector<Cursor>{Cursor::wait, Cursor::normal}));
}

TEST_F(Sending, OffInSmallLettersIsOnLine) {
  form.OnLine = "off";
  face.answer(Answer::yes);
  http.reply(accepted);
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(plainQuestion, sentBox));
  EXPECT_EQ(http.sent.size(), 1U);
}

TEST_F(Sending, TakesAQuantityThatIsStillBeingTyped) {
  form.grdPozycje.setRow(1);
  form.grdPozycje.setColumn(GRD_POZ_QTY_DESPATCHED);
  form.txtEdycja.setText("4,000");
  form.txtEdycja.setVisible(true);
  face.answer(Answer::no);
  send();
  EXPECT_FALSE(form.txtEdycja.visible());
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_QTY_DESPATCHED), "4,000");
  EXPECT_THAT(takeBoxes(), ElementsAre(packingQuestion));
}

TEST_F(Sending, TakesAValueThatIsStillBeingTypedIntoTheTotals) {
  form.grdSuma.setRow(1);
  form.grdSuma.setColumn(GRD_SUMA_QTY_DESPATCHED);
  form.txtEdycjaSuma.setText("7");
  form.txtEdycjaSuma.setVisible(true);
  face.answer(Answer::no);
  send();
  EXPECT_FALSE(form.txtEdycjaSuma.visible());
  EXPECT_EQ(form.grdSuma.cell(1, GRD_SUMA_QTY_DESPATCHED), "7");
}

TEST_F(Sending, ChangesNothingInTheDocument) {
  const std::vector<std::string> before = row(form.grdPozycje, 1);
  face.answer(Answer::yes);
  http.reply(accepted);
  send();
  EXPECT_EQ(row(form.grdPozycje, 1), before);
  EXPECT_EQ(session.LineCount, 1);
}

TEST_F(Sending, EnablesTheControlAfterAnUnexpectedError) {
  form.grdSuma.observers.add([](const Change&) { throw errors::outOfMemory(); });
  form.LastSentNumber = "WZ-1";
  face.answer(Answer::yes);
  bool waitingAtError = false;
  face.whileBoxIsOpen([](const MessageBox&) {});  // the question
  face.whileBoxIsOpen([&](const MessageBox&) {
    waitingAtError = !form.enabled() && screen.cursor() == Cursor::wait;
  });
  send();
  EXPECT_TRUE(waitingAtError);
  EXPECT_THAT(takeBoxes(), ElementsAre(repeatQuestion,
                                       "Произошла ошибка в btnPrzeslij_Click()|"
                                       "critical|OK|Out of memory"));
  EXPECT_TRUE(form.enabled());
  EXPECT_EQ(screen.cursor(), Cursor::normal);
  EXPECT_THAT(http.sent, IsEmpty());
}

TEST_F(Sending, AnErrorBeforeTheWaitLeavesTheCursorAlone) {
  session.LineCount = 2000;
  send();
  EXPECT_THAT(takeBoxes(), ElementsAre(HasSubstr("Произошла ошибка в btnPrzeslij_Click()")));
  EXPECT_THAT(face.cursors(), IsEmpty());
  EXPECT_TRUE(form.enabled());
}

}  // namespace
}  // namespace awizo::test
