#include "reading_desk.h"

namespace awizo::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* notXml = "VIRD|exclamation|OK|Неправильный формат файла XML.";
constexpr const char* notOurs =
    "VIRD|exclamation|OK|Документ не соответствует спецификации подтверждения закза.";

/// The form holds a document of one line and one package.
class ChoosingAFile : public ::testing::Test, public ReadingDesk {
 protected:
  ChoosingAFile() {
    addLine({.ean = "1"});
    addPackage({.description = "Поддон"});
    form.txtNrAwiza.userType("WZ-1");
    form.cboxPackageDescription.userChoose(0);
    form.txtGoodsIdentity.userType("354");
    form.lblILNMiejscaDostValue.setCaption("9520002000026");
  }

  void expectUntouched() {
    EXPECT_EQ(session.LineCount, 1);
    EXPECT_EQ(form.txtNrAwiza.text(), "WZ-1");
    EXPECT_EQ(form.cboxPackageDescription.index(), 0);
    EXPECT_EQ(form.txtGoodsIdentity.text(), "354");
    EXPECT_TRUE(form.enabled());
  }
  void expectCleared() {
    EXPECT_EQ(session.LineCount, 0);
    EXPECT_THAT(TestEditor::row(lines, 1), Each(""));
    EXPECT_THAT(TestEditor::row(totals, 1), Each(""));
    EXPECT_EQ(form.txtNrAwiza.text(), "");
    EXPECT_EQ(form.cboxPackageDescription.index(), 2);
    EXPECT_EQ(form.txtGoodsIdentity.text(), "");
    EXPECT_EQ(form.lblILNMiejscaDostValue.caption(), "");
    EXPECT_EQ(form.lblILNKupWart.caption(), "9520002000019");
    EXPECT_EQ(form.lblNameKupWart.caption(), "ООО Покупатель");
    EXPECT_EQ(form.lblILNSprzedWart.caption(), "9520001000010");
    EXPECT_EQ(form.lblNameSprzedWart.caption(), "ООО Поставщик");
    EXPECT_EQ(session.IloscPozycjiOpak, 1);
    EXPECT_EQ(packages.cell(1, GRD_OPAK_DESC), "Поддон");
    EXPECT_TRUE(form.enabled());
  }
};

TEST_F(ChoosingAFile, TheDialogOpensInItsReadingMode) {
  session.LastFilePath = "old";
  face.onModal([&](Form& shown) {
    EXPECT_EQ(shown.caption(), "Прочитать подтверждение отгрузки.");
    EXPECT_EQ(fileDialog.btnWczytaj.caption(), "&Wczytaj");
    EXPECT_TRUE(fileDialog.ImageWczytaj.visible());
    EXPECT_FALSE(fileDialog.ImageZapisz.visible());
    EXPECT_FALSE(fileDialog.txtAwizoPlik.visible());
    EXPECT_EQ(session.LastFilePath, "");
    EXPECT_FALSE(form.enabled());
    shown.userClose();
  });
  form.btnWczytaj.userClick();
  expectUntouched();
}

TEST_F(ChoosingAFile, CancellingLeavesTheFormAsItWas) {
  closeNextForm();
  form.btnWczytaj.userClick();
  expectUntouched();
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(ChoosingAFile, TheLinesAreDrawnAnewAtItsEnd) {
  for (const bool cancelled : {true, false}) {
    int drawnAnew = 0;
    const int watching = lines.observers.add([&](const Change& change) {
      drawnAnew += change.aspect == Aspect::redraw && form.enabled() ? 1 : 0;
    });
    if (cancelled) {
      closeNextForm();
      form.btnWczytaj.userClick();
    } else {
      read({});
    }
    EXPECT_EQ(drawnAnew, 1);
    lines.observers.remove(watching);
  }
}

TEST_F(ChoosingAFile, AcceptingWithoutAFileLeavesTheFormAsItWas) {
  face.onModal([&] { fileDialog.ImageWczytaj.userClick(); });
  form.btnWczytaj.userClick();
  expectUntouched();
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(ChoosingAFile, AnOpenEditIsClosedFirst) {
  lines.setCell(1, GRD_POZ_QTY_ORDERED, "9,000");
  lines.userCell(1, GRD_POZ_QTY_DESPATCHED);
  lines.userDoubleClick();
  form.txtEdycja.userType("7");
  face.onModal([&](Form& shown) {
    EXPECT_EQ(lines.cell(1, GRD_POZ_QTY_DESPATCHED), "7");
    shown.userClose();
  });
  form.btnWczytaj.userClick();
  EXPECT_FALSE(form.txtEdycja.visible());
}

TEST_F(ChoosingAFile, AFileThatIsNoXmlIsRefusedAndTheFormIsEmpty) {
  for (const char* bytes : {"", "не XML", "<a>", "<a></b>", "<a>&unknown;</a>", "\xFF\xFE\x00\x01",
                            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>"}) {
    readBytes(bytes);
    EXPECT_THAT(takeBoxes(), ElementsAre(notXml)) << bytes;
    expectCleared();
  }
}

TEST_F(ChoosingAFile, ADocumentOfAnotherKindIsRefusedAndTheFormIsEmpty) {
  for (const char* text :
       {"<Document-Order/>", "<document-despatchadvice/>", "<a><Document-DespatchAdvice/></a>",
        "<Document-DespatchAdvice xmlns=\"urn:x\"/>"}) {
    readBytes(text);
    EXPECT_THAT(takeBoxes(), ElementsAre(notOurs)) << text;
    expectCleared();
  }
}

TEST_F(ChoosingAFile, AFileThatIsGoneByThenIsToldAndRefused) {
  files.put("c:\\docs\\awizo.xml", AdvicePieces{}.text());
  files.failReading("c:\\docs\\awizo.xml", errors::fileNotFound());
  choose("awizo.xml");
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка вLoadDocument()|critical|OK|File not found", notXml));
  expectCleared();
}

TEST_F(ChoosingAFile, AFileThatMayNotBeReadIsToldAndRefused) {
  files.put("c:\\docs\\awizo.xml", AdvicePieces{}.text());
  files.failReading("c:\\docs\\awizo.xml", errors::permissionDenied());
  choose("awizo.xml");
  EXPECT_THAT(
      takeBoxes(),
      ElementsAre("Произошла ошибка вLoadDocument()|critical|OK|Permission denied", notXml));
}

TEST_F(ChoosingAFile, AnotherSellersDocumentIsRefused) {
  AdvicePieces document;
  document.parties =
      "<DespatchAdvice-Parties><Buyer><ILN>0</ILN></Buyer><Seller><ILN>9520001000011</ILN>"
      "<CodeByBuyer>77</CodeByBuyer></Seller></DespatchAdvice-Parties>";
  read(document);
  EXPECT_THAT(takeBoxes(), ElementsAre("VIRD|exclamation|OK|Неправильный ILN номер продавца"));
  expectCleared();
  EXPECT_EQ(form.txtCodeByBuyer.text(), "");
}

TEST_F(ChoosingAFile, AnotherBuyersDocumentIsRefusedAfterTheSellersCodeWasRead) {
  AdvicePieces document;
  document.parties =
      "<DespatchAdvice-Parties><Buyer><ILN>952000200001</ILN></Buyer><Seller>"
      "<ILN>9520001000010</ILN><CodeByBuyer>77</CodeByBuyer></Seller></DespatchAdvice-Parties>";
  read(document);
  EXPECT_THAT(takeBoxes(), ElementsAre("VIRD|exclamation|OK|Неправильный ILN номер покупателя."));
  expectCleared();
  EXPECT_EQ(form.txtCodeByBuyer.text(), "77");
}

TEST_F(ChoosingAFile, MissingPartiesAreNeitherSellerNorBuyer) {
  AdvicePieces document;
  document.parties = "";
  read(document);
  EXPECT_THAT(takeBoxes(), ElementsAre("VIRD|exclamation|OK|Неправильный ILN номер продавца"));
  session.SellerILN.clear();
  read(document);
  EXPECT_THAT(takeBoxes(), ElementsAre("VIRD|exclamation|OK|Неправильный ILN номер покупателя."));
  // What is missing reads as the empty text, and so is equal to a party that isn't known.
  session.BuyerILN.clear();
  read(document);
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1"));
  EXPECT_EQ(form.txtNrAwiza.text(), "WZ-7");
}

TEST_F(ChoosingAFile, AnErrorBesideTheReadingIsToldAndTheControlEnabled) {
  form.lblNiepelnaWagaKom.setCaption("old");
  form.lblNiepelnaWagaKom.observers.add([](const Change&) { throw errors::outOfMemory(); });
  read({});
  EXPECT_EQ(takeBoxes().back(), "Произошла ошибка в btnWczytaj_Click()|critical|OK|Out of memory");
  EXPECT_TRUE(form.enabled());
}

}  // namespace
}  // namespace awizo::test
