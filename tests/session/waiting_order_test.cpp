#include "on_line_start_fixture.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using WaitingOrder = OnLineStart;

TEST_F(WaitingOrder, StartsFromAnEmptyDocumentWhenNoOrderWaits) {
  startWith(catalogueReply, placesReply, "<receive-document-response/>");
  EXPECT_FALSE(form.OrderAnswer);
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_THAT(face.cursors(), IsEmpty());
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(finished());
}

TEST_F(WaitingOrder, GoesOnWithoutTheOrderThatCouldNotBeFetched) {
  http.reply(partnerInfo("ООО Покупатель"));
  http.reply(catalogueReply);
  http.reply(placesReply);
  start();
  EXPECT_THAT(boxes(), ElementsAre(noReply, tooEarly));
  EXPECT_FALSE(form.OrderAnswer);
  EXPECT_TRUE(finished());
}

TEST_F(WaitingOrder, ReadsTheOrderCompletedFromTheCatalogue) {
  startWith(catalogueReply, placesReply, orderReply(orderLine("4607000000116", "2.50")));
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(form.OrderAnswer);
  EXPECT_EQ(session.LineCount, 1);
  EXPECT_EQ(form.txtNrZam.text(), "Z-1");
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_NAME), "Чай");
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_QTY_DESPATCHED), "5,000");
  EXPECT_EQ(form.lblAdresMiejscaDostawy.caption(), "Тула");
  EXPECT_EQ(form.grdSuma.cell(1, GRD_SUMA_LINE_COUNT), "1");
}

TEST_F(WaitingOrder, GivesTheOrdersHeaderTheDefaultsOfANewDocument) {
  startWith("<none/>", "<none/>", orderReply(orderLine("1", "2")));
  EXPECT_EQ(form.txtDataAwiza.date(), makeDate(2026, 11, 21));
  EXPECT_EQ(form.cboxPackageDescription.index(), 2);
  EXPECT_EQ(form.txtGoodsIdentity.text(), "0");
}

TEST_F(WaitingOrder, PaintsFaultyLinesAndCountsTheOthers) {
  startWith("<none/>", "<none/>",
            orderReply(orderLine("4607000000116", "2.50") + orderLine("ABC", "2.50") +
                       orderLine("4607000000123", "1") + orderLine("", "1")));
  const Table& lines = form.grdPozycje;
  EXPECT_EQ(session.LineCount, 4);
  EXPECT_EQ(form.ValidLineCount, 2);
  for (const int row : {2, 4}) {
    EXPECT_EQ(lines.look(row, 0).background, white);
    for (int column = 1; column <= 21; ++column) {
      EXPECT_EQ(lines.look(row, column).background, (Colour{255, 192, 192})) << column;
    }
    EXPECT_EQ(lines.look(row, 22).background, white);
  }
  for (const int row : {0, 1, 3}) {
    for (int column = 0; column < lines.columns(); ++column) {
      EXPECT_EQ(lines.look(row, column).background, white) << row << " " << column;
    }
  }
  EXPECT_TRUE(control.Enabled());
  EXPECT_TRUE(finished());
}

TEST_F(WaitingOrder, WaitsWhileItChecksTheLinesRowByRow) {
  create();
  std::vector<std::string> seen;
  form.grdPozycje.onSelectionChange = [&] {
    seen.push_back(std::to_string(form.grdPozycje.row()) + "," +
                   std::to_string(form.grdPozycje.column()) +
                   (screen.cursor() == Cursor::wait ? " wait" : ""));
  };
  http.reply(partnerInfo("ООО Покупатель"));
  http.reply("<none/>");
  http.reply("<none/>");
  http.reply(orderReply(orderLine("1", "1") + orderLine("2", "1")));
  control.UserControl_Show();
  EXPECT_THAT(seen, Contains("2,1 wait"));
  // Once for reading the order, once for checking its lines.
  EXPECT_EQ(face.cursors(),
            (std::vector<Cursor>{Cursor::wait, Cursor::normal, Cursor::wait, Cursor::normal}));
  EXPECT_EQ(screen.cursor(), Cursor::normal);
}

TEST_F(WaitingOrder, GivesBackTheCursorThatWasThere) {
  screen.setCursor(Cursor::wait);
  startWith("<none/>", "<none/>", orderReply(orderLine("1", "1")));
  EXPECT_EQ(screen.cursor(), Cursor::wait);
}

TEST_F(WaitingOrder, GivesBackTheCursorThatWasThereAfterAnErrorToo) {
  std::string lines;
  for (int line = 0; line < 1424; ++line) lines += orderLine("4607000000116", "1");
  screen.setCursor(Cursor::wait);
  startWith("<none/>", "<none/>", orderReply(lines));
  EXPECT_FALSE(finished());
  EXPECT_EQ(screen.cursor(), Cursor::wait);
}

TEST_F(WaitingOrder, LeavesTheCurrentCellWhereTheTotalsPutIt) {
  startWith("<none/>", "<none/>", orderReply(orderLine("1", "1") + orderLine("2", "1")));
  EXPECT_EQ(form.grdPozycje.row(), 2);
  EXPECT_EQ(form.grdPozycje.column(), GRD_POZ_NET_AMOUNT);
}

TEST_F(WaitingOrder, AnOrderWithoutLinesLeavesAnEmptyTable) {
  startWith("<none/>", "<none/>", orderReply(""));
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(form.OrderAnswer);
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_EQ(form.grdPozycje.rows(), 2);
  EXPECT_EQ(form.grdPozycje.row(), 1);
  EXPECT_EQ(form.grdPozycje.column(), 1);
  EXPECT_TRUE(finished());
}

TEST_F(WaitingOrder, AnOrderThatCantBeReadIsToldAndTheStartUpGoesOn) {
  startWith("<none/>", "<none/>",
            "<receive-document-response><document-content><Document-Order/></document-content>"
            "</receive-document-response>");
  EXPECT_THAT(boxes(), ElementsAre("Произошла ошибка в Wczytaj_Zamowienie()|critical|OK|"
                                   "Object variable or With block variable not set"));
  EXPECT_TRUE(control.Enabled());
  EXPECT_TRUE(finished());
}

TEST_F(WaitingOrder, AnOrderOfMoreLinesThanTheTableHoldsEndsItWithItsLinesStanding) {
  std::string lines;
  for (int line = 0; line < 1424; ++line) lines += orderLine("4607000000116", "1");
  startWith("<none/>", "<none/>", orderReply(lines));
  EXPECT_THAT(boxes(), ElementsAre("Произошла ошибка в Wczytaj_Zamowienie()|critical|OK|Overflow",
                                   "Произошла ошибка в UserControl_Show()|critical|OK|Overflow"));
  EXPECT_EQ(form.grdPozycje.cell(1423, GRD_POZ_EAN), "4607000000116");
  EXPECT_EQ(form.ValidLineCount, 1423);
  EXPECT_TRUE(control.Enabled());
  EXPECT_FALSE(finished());
  EXPECT_EQ(screen.cursor(), Cursor::normal);
}

TEST_F(WaitingOrder, TakesAnOrderOfAsManyLinesAsTheTableHolds) {
  std::string lines;
  for (int line = 0; line < 1423; ++line) lines += orderLine("4607000000116", "1");
  startWith("<none/>", "<none/>", orderReply(lines));
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_EQ(form.ValidLineCount, 1423);
  EXPECT_TRUE(finished());
}

TEST(WaitingOrderInAPointLocale, ReadsTheOrderWithPoints) {
  TestControl american("en_US");
  american.prepareFolder();
  american.preparePage();
  american.http.reply(TestControl::partnerInfo("Buyer"));
  american.http.reply("<none/>");
  american.http.reply("<none/>");
  american.http.reply(orderReply(orderLine("4607000000116", "2.50")));
  american.start();
  EXPECT_THAT(american.boxes(), IsEmpty());
  EXPECT_EQ(american.form.grdPozycje.cell(1, GRD_POZ_QTY_DESPATCHED), "5.000");
  EXPECT_EQ(american.form.grdPozycje.cell(1, GRD_POZ_PRICE), "2.50");
  EXPECT_EQ(american.form.ValidLineCount, 1);
}

}  // namespace
}  // namespace awizo::test
