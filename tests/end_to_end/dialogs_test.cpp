// Lines and packages entered through the dialogs, as a user does it off line.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/files/files.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DialogsTest : public testing::TestWithParam<const char*> {
 protected:
  DialogsTest() { editor.show(); }

  std::string number(std::string_view withPoint) const { return supplier.number(withPoint); }
  std::vector<std::string> events() {
    std::vector<std::string> names;
    for (const Json& event : editor.takeEvents()) {
      names.push_back(event["event"].get<std::string>() + " " + event["form"].get<std::string>());
    }
    return names;
  }
  /// Fills the open line dialog with what a line must have.
  void fillLine(std::string_view ean, std::string_view quantity) {
    editor.type("DlgDodaj.txtlEANProdWart", ean);
    editor.type("DlgDodaj.txtIloscPotw", quantity);
  }
  void addLine(std::string_view ean, std::string_view quantity) {
    editor.click("btnDodaj");
    fillLine(ean, quantity);
    editor.click("DlgDodaj.btnDodaj");
  }

  Supplier supplier{GetParam()};
  Conversation editor = supplier.startOffLine();
};

INSTANTIATE_TEST_SUITE_P(BothLocales, DialogsTest, testing::Values("ru_RU", "en_US"));

TEST_P(DialogsTest, LineIsEnteredWithItsCountryFromTheList) {
  editor.click("btnDodaj");
  EXPECT_EQ(editor.get("DlgDodaj")["caption"], "Добавь продукт");
  EXPECT_EQ(editor.caption("DlgDodaj.lblPozycjaTow"), "Позиция номер 1");
  EXPECT_EQ(editor.get("DlgDodaj.cboxEANProd")["visible"], false);
  fillLine("9520001010019", "2.5");
  editor.click("DlgDodaj.btnISOcodes");
  // Dragged over three rows, the marking shrinks to the row where it began.
  editor.act({{"do", "select"},
              {"on", "DlgIsoCodes.grdISO"},
              {"row", 3},
              {"col", 0},
              {"rowSel", 5},
              {"colSel", 1}});
  EXPECT_EQ(editor.get("DlgIsoCodes.grdISO")["rowSel"], 3);
  EXPECT_EQ(editor.get("DlgIsoCodes.grdISO")["redraw"], true);
  editor.click("DlgIsoCodes.btnAccept");
  EXPECT_EQ(editor.text("DlgDodaj.comboCountry").substr(0, 4), "(AZ)");
  editor.click("DlgDodaj.btnDodaj");
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_THAT(events(), ElementsAre("modal DlgDodaj", "modal DlgIsoCodes", "hidden DlgIsoCodes",
                                    "hidden DlgDodaj"));
  EXPECT_EQ(editor.get("session")["LineCount"], 1);
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 4), number("2.500"));
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 15), "AZ");
  EXPECT_EQ(editor.cellText("grdSuma", 1, 1), number("2.500"));
  // The main form's list has the country too.
  EXPECT_EQ(editor.get("comboCountry")["rows"].size(), 11U);
}

TEST_P(DialogsTest, WrongLineIsRefusedWithTheFocusOnTheFault) {
  editor.click("btnDodaj");
  editor.click("DlgDodaj.btnDodaj");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRD|critical|Стоимость для поля 'Штрих-код товара' есть ошибочная или "
                          "отсутсвует"));
  EXPECT_EQ(editor.get("focus"), "DlgDodaj.txtlEANProdWart");
  fillLine("1", "many");
  editor.key("DlgDodaj.txtIloscPotw", 13);
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRD|critical|Стоимость для поля 'Количество отгружено' есть ошибочная "
                          "или отсутсвует"));
  EXPECT_EQ(editor.get("DlgDodaj")["shown"], true);
  editor.close("DlgDodaj");
  EXPECT_EQ(editor.get("DlgDodaj")["DlgResult"], 0);
  EXPECT_EQ(editor.get("session")["LineCount"], 0);
}

TEST_P(DialogsTest, QuantityForAPackageIsSpunWithinItsLimits) {
  addPackage(editor, "Паллета", serials[0]);
  addLine("1", "3");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRDDesAdv|none|Отгруженный товар упакован не полностью"));
  editor.cell("grdPozycje", 1, 1);
  editor.key("grdPozycje", 13);
  EXPECT_EQ(editor.get("DlgDodaj")["caption"], "Издание продукта");
  editor.click("DlgDodaj.Command1");
  EXPECT_EQ(editor.get("DlgdodajPule.UpDown1")["max"], 3);
  EXPECT_EQ(editor.text("DlgdodajPule.txtQuantity"), "3");
  editor.act({{"do", "spin"}, {"on", "DlgdodajPule.UpDown1"}, {"by", -1}});
  EXPECT_EQ(editor.text("DlgdodajPule.txtQuantity"), "2");
  editor.act({{"do", "spin"}, {"on", "DlgdodajPule.UpDown1"}, {"by", 5}});
  EXPECT_EQ(editor.text("DlgdodajPule.txtQuantity"), "3");
  editor.click("DlgdodajPule.btnDodaj");
  EXPECT_EQ(editor.get("focus"), "DlgDodaj.grdPozycje");
  EXPECT_EQ(editor.caption("DlgDodaj.lblPackedQuantityValue"), number("3.000"));
  editor.refused({{"do", "click"}, {"on", "DlgDodaj.Command1"}});
  editor.click("DlgDodaj.btnDodaj");
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 20), "2@Паллета@1@" + number("3.000"));

  editor.cell("grdOpakowania", 1, 3);
  editor.click("btnUsunOpak");
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 20), "");
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 21), number("0.000"));
  EXPECT_EQ(editor.get("session")["IloscPozycjiOpak"], 0);
}

TEST_P(DialogsTest, CountryIsFilledIntoAllLines) {
  addLine("1", "1");
  addLine("2", "1");
  editor.type("comboCountry", "pl");
  editor.click("btnNadpisz2");
  EXPECT_EQ(editor.openBox(),
            "VIRD|question|Вы уверены, что хотите заполнить все поля для 'Код страны "
            "производителя'?\rВ этом случае текущие значения будут изменены.");
  editor.answer("Yes");
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 15), "PL");
  EXPECT_EQ(editor.cellText("grdPozycje", 2, 15), "PL");
  EXPECT_EQ(editor.text("comboCountry"), "PL");
  editor.type("comboCountry", "x");
  editor.click("btnUzupelnij2");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRD|exclamation|The value of ISO code is not allowed"));
}

TEST_P(DialogsTest, TableIsScrolledAndAnOpenEditorStaysOverItsCell) {
  for (int i = 0; i < 20; ++i) addLine("1", "1");
  editor.cell("grdPozycje", 12, 4);
  editor.doubleClick("grdPozycje");
  const int before = editor.get("txtEdycja")["y"];
  const int top = editor.get("grdPozycje")["top"];
  editor.act({{"do", "scroll"}, {"on", "grdPozycje"}, {"top", top + 1}});
  EXPECT_EQ(editor.get("grdPozycje")["top"], top + 1);
  EXPECT_EQ(editor.get("txtEdycja")["y"], before - 240);
  editor.key("txtEdycja", 27);
  EXPECT_EQ(editor.get("txtEdycja")["visible"], false);
}

TEST_P(DialogsTest, MarkupInACellStopsTheWriterAtItsStep) {
  addLine("1", "1");
  editor.cell("grdPozycje", 1, 1);
  editor.doubleClick("grdPozycje");
  editor.type("DlgDodaj.cboxJednostkaMiary", "A&B");
  editor.click("DlgDodaj.btnDodaj");
  EXPECT_EQ(editor.cellText("grdPozycje", 1, 9), "A&B");
  editor.type("txtNrAwiza", "1");
  editor.type("txtNrZam", "2");
  editor.click("btnZapisz");
  editor.answer("Yes");
  const auto file = supplier.place.documents() / "a.xml";
  writeFile(file, "old");
  editor.type("DlgWczytajZapisz.txtAwizoPlik", file.string());
  editor.click("DlgWczytajZapisz.ImageZapisz");
  EXPECT_THAT(editor.answerAll(), ElementsAre("Произошла ошибка в MakeDesAdv()10|critical|Invalid "
                                              "procedure call or argument"));
  EXPECT_EQ(readFile(file), "old");
  EXPECT_EQ(editor.get("control")["Enabled"], true);
}

}  // namespace
}  // namespace awizo::test
