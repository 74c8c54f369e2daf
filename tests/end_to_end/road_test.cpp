// The road of a document: an order comes in, is packed, sent, saved, and read back.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/files/files.h"
#include "support/schemas/schema.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class RoadTest : public testing::TestWithParam<const char*> {
 protected:
  Supplier supplier{GetParam()};
  DemoService service{supplier.place.posted()};

  std::string number(std::string_view withPoint) const { return supplier.number(withPoint); }
};

INSTANTIATE_TEST_SUITE_P(BothLocales, RoadTest, testing::Values("ru_RU", "en_US"));

TEST_P(RoadTest, StartOnLineTakesTheWaitingOrderAndCompletesIt) {
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());

  EXPECT_EQ(editor.caption("lblOnLineStatus"), "On-Line");
  EXPECT_EQ(editor.caption("lblNameKupWart"), "АО «Магазины рядом»");
  EXPECT_EQ(editor.caption("lblNameSprzedWart"), "ООО «Товары каждый день»");
  EXPECT_EQ(editor.caption("lblNazwaMiejscaDostawy"), "РЦ-01 Подольск");
  EXPECT_EQ(editor.text("txtNrZam"), "ЗК-2026/1147");
  EXPECT_EQ(editor.get("dpDataZam")["date"], "2026-11-18");
  EXPECT_EQ(editor.get("txtDataAwiza")["date"], today);
  EXPECT_EQ(editor.get("txtEstimatedDeliveryDate")["date"], expectedDelivery);
  EXPECT_EQ(editor.get("session")["LineCount"], 25);
  // Line 2 came without name, price and unit: the catalogue knew them.
  EXPECT_EQ(editor.cellText("grdPozycje", 2, 9), "PCE");
  EXPECT_NE(editor.cellText("grdPozycje", 2, 2), "");
  EXPECT_EQ(editor.cellText("grdPozycje", 2, 4), number("96.000"));
  EXPECT_EQ(editor.cellText("grdSuma", 1, 0), "25");
  EXPECT_EQ(editor.cellText("grdSuma", 1, 1), number("1367.500"));
  EXPECT_EQ(editor.finish(), 0);
}

TEST_P(RoadTest, TwoLinesOfTheOrderAreFaultyAndStandPink) {
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  const Json table = editor.get("grdPozycje");
  Json pink = Json::array();
  for (const int row : {11, 17}) {
    for (int column = 1; column <= 21; ++column) {
      pink.push_back(Json::array({row, column, "#ffc0c0"}));
    }
  }
  EXPECT_EQ(table["colours"], pink);
  EXPECT_EQ(editor.get("control")["ValidLineCount"], 23);
  EXPECT_EQ(table["row"], 25);
  EXPECT_EQ(table["col"], 11);
  EXPECT_EQ(editor.call("CheckGridRow", {11}), false);
  EXPECT_EQ(editor.get("control")["BadColumnName"], "EAN");
  EXPECT_EQ(editor.call("CheckGridRow", {17}), false);
  EXPECT_EQ(editor.get("control")["BadColumnName"], "Cena netto");
}

TEST_P(RoadTest, QuantityIsEditedInTheTable) {
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  editor.cell("grdPozycje", 1, 4);
  editor.doubleClick("grdPozycje");
  EXPECT_EQ(editor.get("focus"), "txtEdycja");
  EXPECT_EQ(editor.text("txtEdycja"), number("120.000"));
  EXPECT_TRUE(editor.get("txtEdycja").contains("x"));
  editor.type("txtEdycja", "100.5");
  editor.key("txtEdycja", 13);
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 4), number("100.500"));
  EXPECT_EQ(editor.get("txtEdycja")["visible"], false);
  EXPECT_EQ(editor.get("grdPozycje")["row"], 2);
  EXPECT_EQ(editor.cellText("grdSuma", 1, 1), number("1348.000"));

  // No more than was ordered.
  editor.cell("grdPozycje", 1, 4);
  editor.doubleClick("grdPozycje");
  editor.type("txtEdycja", "500");
  editor.cell("grdPozycje", 3, 2);
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 4), number("120.000"));

  editor.cell("grdPozycje", 1, 4);
  editor.doubleClick("grdPozycje");
  editor.type("txtEdycja", "abc");
  editor.key("txtEdycja", 13);
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRD|exclamation|Неправильная нумерическая величина."));
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 4), number("120.000"));
}

TEST_P(RoadTest, SendingWantsARightHeaderAndAsksAboutUnpackedGoods) {
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  editor.click("btnPrzeslij");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRD|exclamation|В поле Номер Документа вводите номер распечатанной "
                          "товарной накладной"));
  EXPECT_EQ(editor.get("focus"), "txtNrAwiza");
  editor.type("txtCodeByBuyer", "P-00417");
  editor.type("txtNrAwiza", "ТН/1");
  editor.click("btnPrzeslij");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRD|exclamation|Неправильно количество в поле 'Код поставщика у "
                          "покупателя'"));
  EXPECT_EQ(editor.get("focus"), "txtCodeByBuyer");
  editor.type("txtCodeByBuyer", "417");
  editor.click("btnPrzeslij");
  const std::string notPacked =
      "VIRD|none|Отгруженный товар упакован не полностью.\r\nВы уверены, что хотите отправить "
      "документ в таком виде?";
  EXPECT_EQ(editor.openBox(), notPacked);
  editor.answer("No");
  EXPECT_THAT(service.posted(), IsEmpty());
  editor.click("btnPrzeslij");
  EXPECT_THAT(editor.answerAll(), ElementsAre(notPacked, "VIRD|information|Документ отправлен."));
  ASSERT_EQ(service.posted().size(), 1U);
  EXPECT_EQ(editor.get("control")["LastSentNumber"], "ТН/1");
  EXPECT_EQ(editor.get("cursor"), "default");
  EXPECT_EQ(editor.get("control")["Enabled"], true);
}

TEST_P(RoadTest, SameNumberGoesOutAgainOnlyAfterAQuestion) {
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  completeHeader(editor);
  editor.click("btnPrzeslij");
  editor.answerAll();
  editor.click("btnPrzeslij");
  editor.answer("Yes");
  EXPECT_EQ(editor.openBox(),
            "VIRD|question|Вы пытаетесь отослать документ с уже существующим "
            "номером.\rПродолжить?");
  editor.answer("No");
  EXPECT_EQ(service.posted().size(), 1U);
}

TEST_P(RoadTest, PackedOrderIsSentSavedAndReadBack) {
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  completeHeader(editor, "ТН/7\\1");
  addPackage(editor, "Паллета", serials[0]);
  addPackage(editor, "Коробка 1", serials[1], 0);
  addPackage(editor, "Коробка 2", serials[2], 0);
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  packLine(editor, 1, "Коробка 1", "100");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRDDesAdv|none|Отгруженный товар упакован не полностью"));
  packLine(editor, 1, "Коробка 2", number("20"));
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 20),
            "3@Коробка 1@2@" + number("100.000") + "$4@Коробка 2@2@" + number("20.000"));
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 21), number("120.000"));

  editor.click("btnPrzeslij");
  editor.answerAll();
  ASSERT_EQ(service.posted().size(), 1U);
  const ReadDocument sent(service.posted().front());
  const std::string root = "/Document-DespatchAdvice/";
  EXPECT_EQ(sent.text(root + "DespatchAdvice-Header/DespatchAdviceNumber"), "ТН/7\\1");
  EXPECT_EQ(sent.text(root + "DespatchAdvice-Header/EstimatedDeliveryDate"), expectedDelivery);
  EXPECT_EQ(sent.text(root + "DespatchAdvice-Parties/Seller/CodeByBuyer"), "417");
  EXPECT_EQ(sent.text(root + "DespatchAdvice-Consignment/Packing-Sequence[4]/ParentId"), "2");
  EXPECT_EQ(sent.text(root + "DespatchAdvice-Consignment/Packing-Sequence[2]/SerialNumber"),
            serials[0]);
  EXPECT_EQ(sent.count(root + "DespatchAdvice-Lines/Line"), 25U);
  EXPECT_EQ(sent.text(root + "DespatchAdvice-Lines/Line[1]/Package-Reference[2]/PackageId"), "4");
  EXPECT_EQ(sent.text(root + "DespatchAdvice-Lines/Line[1]/Package-Reference[2]/Quantity"),
            "20.000");
  EXPECT_EQ(sent.text(root + "DespatchAdvice-Summary/TotalQuantity"), "1367.50");
  // Sending doesn't look at the two faulty lines.
  EXPECT_THAT(Schema("despatch-advice-sound").problemsOf(service.posted().front()),
              ElementsAre(HasSubstr("'ABC'"), HasSubstr("'договорная'")));

  editor.click("btnZapisz");
  editor.answer("Yes");
  EXPECT_EQ(editor.text("DlgWczytajZapisz.txtAwizoPlik"), "Подтверждение_отгрузки_ТН_7_1.xml");
  editor.openFolder("DlgWczytajZapisz.DirList", supplier.place.documents().string());
  editor.click("DlgWczytajZapisz.ImageZapisz");
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  const auto file = supplier.place.documents() / "Подтверждение_отгрузки_ТН_7_1.xml";
  EXPECT_EQ(ReadDocument(readFile(file)).xml(), sent.xml());

  editor.click("btnWczytaj");
  editor.choose("DlgWczytajZapisz.FileList", 0);
  editor.click("DlgWczytajZapisz.ImageWczytaj");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRDDesAdv|none|break1", "VIRDDesAdv|none|1", "VIRDDesAdv|none|2",
                          "VIRDDesAdv|none|3", "VIRDDesAdv|none|4"));
  EXPECT_EQ(editor.text("txtNrAwiza"), "ТН/7\\1");
  EXPECT_EQ(editor.get("session")["LineCount"], 25);
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 4), number("120.000"));
  EXPECT_EQ(editor.cellText("grdSuma", 1, 1), number("1367.50"));
  EXPECT_EQ(editor.get("control")["OrderAnswer"], false);
  EXPECT_EQ(editor.finish(), 0);
}

TEST_P(RoadTest, RequestsCarryTheCookieAndTheExpectedAddresses) {
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  completeHeader(editor);
  editor.click("btnPrzeslij");
  editor.answerAll();
  std::vector<std::string> targets;
  for (const Json& request : service.requests()) {
    targets.push_back(request["target"]);
    EXPECT_EQ(request["cookie"], "session=1; user=anna");
    EXPECT_EQ(request["contentType"], nullptr);
  }
  EXPECT_THAT(targets, ElementsAre("/vird/Partners.aspx?format=xml", "/vird//GetDocument.aspx",
                                   "/vird/Dictionary.aspx", "/vird/partner/OrderData.aspx",
                                   "/vird/partner/Upload.aspx"));
}

}  // namespace
}  // namespace awizo::test
