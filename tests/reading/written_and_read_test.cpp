#include "formats/despatch_advice_writer.h"
#include "reading_desk.h"
#include "session/record/header_panel.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;

/// A document that a user made and saved: what comes back, and what doesn't.
struct SavedDocument : ReadingDesk {
  explicit SavedDocument(std::string_view localeName) : ReadingDesk(localeName) {
    form.txtNrAwiza.userType("WZ/7");
    form.txtNrZam.userType("ORD-7");
    form.txtCodeByBuyer.userType("77");
    form.txtDataAwiza.userSet(makeDate(2026, 11, 2));
    form.txtDespatchAdviceTime.userSet(TimeOfDay{8, 30, 0});
    form.txtEstimatedDeliveryDate.userSet(makeDate(2026, 12, 1));
    form.txtEstimatedDeliveryTime.userSet(TimeOfDay{14, 45, 0});
    form.dpDataZam.userSet(makeDate(2026, 10, 30));
    form.DeliveryILN = "9520002000026";
    addPackage({.description = "Поддон"});
    addPackage({.description = "Коробка", .parent = 0});
    face.onModal([&] {
      type(LineEntry{.ean = "4607000000116", .name = "Чай", .ordered = "7.5", .despatched = "5"});
      lineDialog.txtKodKup.userType("B-1");
      lineDialog.txtCDN1.userType("12345678");
      lineDialog.txtCDN3.userType("1234567");
      lineDialog.comboCountry.userChoose(6);
      assign(1, "5");
      lineDialog.btnDodaj.userClick();
    });
    form.btnDodaj.userClick();
    addLine({.ean = "4607000000123", .name = "Кофе", .ordered = "2", .despatched = "2"});
    lines.setCell(1, GRD_POZ_TAX_RATE, "18");
    lines.setCell(1, GRD_POZ_ORDER_LINE, "42");
    EXPECT_THAT(takeBoxes(), ElementsAre(notPacked));
    const auto document = MakeDesAdv(editor);
    saved = document->fileBytes();
  }

  std::string number(std::string_view text, int decimals) {
    return editor.conversions.NormalizeDecimal(text, decimals);
  }

  static constexpr const char* notPacked =
      "VIRDDesAdv|none|OK|Отгруженный товар упакован не полностью";
  std::string saved;
};

class WrittenAndRead : public ::testing::TestWithParam<const char*>, public SavedDocument {
 protected:
  WrittenAndRead() : SavedDocument(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Locales, WrittenAndRead, ::testing::Values("ru_RU", "en_US"),
                         [](const auto& parameter) { return std::string(parameter.param); });

TEST_P(WrittenAndRead, TheHeaderComesBackButTheOrdersDate) {
  readBytes(saved);
  EXPECT_EQ(form.txtNrAwiza.text(), "WZ/7");
  EXPECT_EQ(form.txtNrZam.text(), "ORD-7");
  EXPECT_EQ(form.txtCodeByBuyer.text(), "77");
  EXPECT_EQ(form.txtDataAwiza.date(), makeDate(2026, 11, 2));
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), (TimeOfDay{8, 30, 0}));
  EXPECT_EQ(form.txtEstimatedDeliveryDate.date(), makeDate(2026, 12, 1));
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), (TimeOfDay{14, 45, 0}));
  EXPECT_EQ(form.DeliveryILN, "9520002000026");
  EXPECT_EQ(form.dpDataZam.date(), std::nullopt);
  EXPECT_NE(saved.find("<BuyerOrderDate>2026-10-30</BuyerOrderDate>"), std::string::npos);
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1", "VIRDDesAdv|none|OK|2",
                                       "VIRDDesAdv|none|OK|3"));
}

TEST_P(WrittenAndRead, LinesComeBackWithoutPackagesAndCustomsNumber) {
  readBytes(saved);
  EXPECT_EQ(session.LineCount, 2);
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("4607000000116", "4607000000123"));
  EXPECT_THAT(column(lines, GRD_POZ_NAME), ElementsAre("Чай", "Кофе"));
  EXPECT_THAT(column(lines, GRD_POZ_QTY_ORDERED), ElementsAre(number("7.5", 3), number("2", 3)));
  EXPECT_THAT(column(lines, GRD_POZ_QTY_DESPATCHED), ElementsAre(number("5", 3), number("2", 3)));
  EXPECT_EQ(lines.cell(1, GRD_POZ_CODE_BY_BUYER), "B-1");
  EXPECT_EQ(lines.cell(1, GRD_POZ_COUNTRY), "PL");
  EXPECT_EQ(lines.cell(1, GRD_POZ_TAX_RATE), "18");
  EXPECT_THAT(column(lines, GRD_POZ_CDN), Each(""));
  EXPECT_THAT(column(lines, GRD_POZ_PACK_REFS), Each(""));
  EXPECT_THAT(column(lines, GRD_POZ_PACKED_QTY), Each(number("0", 3)));
  // The order's line number is taken from the line's own number.
  EXPECT_THAT(column(lines, GRD_POZ_ORDER_LINE), ElementsAre("1", "2"));
}

TEST_P(WrittenAndRead, TotalsComeBackWithTwoDecimals) {
  readBytes(saved);
  EXPECT_THAT(TestEditor::row(totals, 1), ElementsAre("2", number("7", 2), number("0", 2)));
}

TEST_P(WrittenAndRead, TheRootOfTheConsignmentCountsAsAPackage) {
  readBytes(saved);
  EXPECT_EQ(packages.rows(), 4);
  EXPECT_THAT(column(packages, GRD_OPAK_ID_LOW), ElementsAre("1", "2", "3"));
  EXPECT_EQ(session.IloscPozycjiOpak, 2);
}

TEST_P(WrittenAndRead, WhatWasReadCanBeEditedAndWrittenAgain) {
  readBytes(saved);
  takeBoxes();
  lines.userCell(1, GRD_POZ_EAN);
  editLine([&] { lineDialog.txtNazwaProdWart.userType("Чай зелёный"); });
  EXPECT_EQ(lines.cell(1, GRD_POZ_NAME), "Чай зелёный");
  EXPECT_THAT(takeBoxes(), ElementsAre(notPacked));
  const auto again = MakeDesAdv(editor);
  ASSERT_TRUE(again);
  EXPECT_NE(again->fileBytes().find("Чай зелёный"), std::string::npos);
}

/// The picture that saves takes no focus, so the editor stays open, and its text isn't in the cell.
TEST_P(WrittenAndRead, AnEditThatIsStillOpenIsNotSavedYet) {
  lines.userCell(1, GRD_POZ_QTY_DESPATCHED);
  lines.userDoubleClick();
  form.txtEdycja.userType("1");
  face.answer(Answer::yes);
  face.onModal([&] {
    fileDialog.txtAwizoPlik.userType("c:\\docs\\saved.xml");
    fileDialog.ImageZapisz.userClick();
  });
  form.btnZapisz.userClick();
  EXPECT_EQ(files.bytes("c:\\docs\\saved.xml"), saved);
  EXPECT_TRUE(form.txtEdycja.visible());
  form.txtEdycja.userKey(keys::enter);
  EXPECT_EQ(lines.cell(1, GRD_POZ_QTY_DESPATCHED), number("1", 3));
}

TEST_P(WrittenAndRead, AnEmptyDocumentIsReadAndReported) {
  while (session.LineCount > 0) form.btnUsun.userClick();
  form.txtNrAwiza.userType("WZ-8");
  form.txtNrZam.userType("Z");
  SetHeader(editor);
  readBytes(MakeDesAdv(editor)->fileBytes());
  EXPECT_EQ(form.txtNrAwiza.text(), "WZ-8");
  EXPECT_THAT(takeBoxes(), Contains(incomplete));
}

TEST(SavedByAnotherProgram, AFileInTheLocalEncodingComesBackToo) {
  SavedDocument desk("ru_RU");
  desk.readBytes("<?xml version=\"1.0\" encoding=\"windows-1251\"?>" +
                 desk.locale.toSingleByte(desk.saved));
  EXPECT_THAT(column(desk.lines, GRD_POZ_NAME), ElementsAre("Чай", "Кофе"));
  desk.readBytes(desk.locale.toSingleByte(desk.saved));
  EXPECT_THAT(column(desk.lines, GRD_POZ_NAME), ElementsAre("Чай", "Кофе"));
}

}  // namespace
}  // namespace awizo::test
