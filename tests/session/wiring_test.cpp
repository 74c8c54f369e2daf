#include "support/control/test_control.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A user off line before a document of one line and one package.
class Wiring : public ::testing::Test, public TestControl {
 protected:
  Wiring() {
    prepareFolder();
    bag.values["OnLine"] = "Off";
    files.put(partnerFile, partnerInfo("ООО Покупатель"));
    start();
    form.txtNrAwiza.setText("WZ-1");
    form.txtNrZam.setText("Z-1");
    session.LineCount = 1;
    form.grdPozycje.setCell(1, GRD_POZ_LP, "1");
    form.grdPozycje.setCell(1, GRD_POZ_EAN, "4607000000116");
    form.grdPozycje.setCell(1, GRD_POZ_QTY_ORDERED, "5,000");
    form.grdPozycje.setCell(1, GRD_POZ_QTY_DESPATCHED, "5,000");
    form.grdPozycje.setCell(1, GRD_POZ_NET_AMOUNT, "10,00");
    form.grdPozycje.setCell(1, GRD_POZ_PRODUCTION_DATE, "21.11.2026");
    form.grdPozycje.setRow(1);
    session.IloscPozycjiOpak = 1;
    form.grdOpakowania.setCell(1, GRD_OPAK_LEVEL, "1");
    form.grdOpakowania.setCell(1, GRD_OPAK_PARENT_SERIAL, "1");
    form.grdOpakowania.setCell(1, GRD_OPAK_SERIAL, "2");
    form.grdOpakowania.setRow(1);
  }

  /// The user closes the next modal form at once.
  void closeNextForm() {
    face.onModal([](Form& shown) { shown.hide(); });
  }
  const std::string& quantity() const { return form.grdPozycje.cell(1, GRD_POZ_QTY_DESPATCHED); }
  void openEditor() {
    form.grdPozycje.userCell(1, GRD_POZ_QTY_DESPATCHED);
    form.grdPozycje.userDoubleClick();
  }
};

TEST_F(Wiring, ButtonsOfTheLinesOpenTheLineDialog) {
  closeNextForm();
  form.btnDodaj.userClick();
  EXPECT_EQ(control.dlgDodaj.caption(), "Добавь продукт");
  closeNextForm();
  form.btnEdytuj.userClick();
  EXPECT_EQ(control.dlgDodaj.caption(), "Издание продукта");
  EXPECT_THAT(face.modalForms(), ElementsAre("DlgDodaj", "DlgDodaj"));
}

TEST_F(Wiring, ButtonsOfThePackagesOpenThePackageDialog) {
  closeNextForm();
  form.btnDodajOpak.userClick();
  closeNextForm();
  form.btnEdytujOpak.userClick();
  EXPECT_THAT(face.modalForms(), ElementsAre("DlgSzczegoly", "DlgSzczegoly"));
}

TEST_F(Wiring, RemovingButtonsRemove) {
  form.btnUsunOpak.userClick();
  EXPECT_EQ(session.IloscPozycjiOpak, 0);
  form.btnUsun.userClick();
  EXPECT_EQ(session.LineCount, 0);
}

TEST_F(Wiring, PicturesOfTheDocumentOpenTheFileDialog) {
  closeNextForm();
  face.answer(Answer::yes);
  form.btnZapisz.userClick();
  EXPECT_EQ(control.dlgWczytajZapisz.caption(), "Записать подтверждение отгрузки");
  closeNextForm();
  form.btnWczytaj.userClick();
  EXPECT_EQ(control.dlgWczytajZapisz.caption(), "Прочитать подтверждение отгрузки.");
  EXPECT_THAT(face.modalForms(), ElementsAre("DlgWczytajZapisz", "DlgWczytajZapisz"));
}

TEST_F(Wiring, ThePictureOfSendingSends) {
  control.setOnLine("On");
  face.answer(Answer::no);
  form.btnPrzeslij.userClick();
  EXPECT_EQ(face.texts().size(), 1U);
}

TEST_F(Wiring, ButtonsOfTheCountryFillTheLines) {
  form.comboCountry.userType("pl");
  face.answer(Answer::yes);
  form.btnUzupelnij2.userClick();
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_COUNTRY), "PL");
  form.comboCountry.userType("by");
  face.answer(Answer::yes);
  form.btnNadpisz2.userClick();
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_COUNTRY), "BY");
}

TEST_F(Wiring, ButtonsOfTheRateFillTheLinesWhereTheyAreShown) {
  form.comboStawkaVAT.setVisible(true);
  form.btnUzupelnij.setVisible(true);
  form.btnNadpisz.setVisible(true);
  form.comboStawkaVAT.userChoose(3);
  face.answer(Answer::yes);
  form.btnUzupelnij.userClick();
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_TAX_RATE), "18");
  form.comboStawkaVAT.userChoose(2);
  face.answer(Answer::yes);
  form.btnNadpisz.userClick();
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_TAX_RATE), "10");
}

TEST_F(Wiring, ThePictureBesideTheCountryOpensTheCountryList) {
  closeNextForm();
  form.Image2.userClick();
  EXPECT_THAT(face.modalForms(), ElementsAre("DlgIsoCodes"));
}

TEST_F(Wiring, ADoubleClickOnTheQuantityOpensItsEditorAndEnterTakesIt) {
  openEditor();
  EXPECT_TRUE(form.txtEdycja.visible());
  EXPECT_EQ(form.focus(), &form.txtEdycja);
  EXPECT_EQ(session.EditRow, 1);
  form.txtEdycja.userType("4");
  form.txtEdycja.userKey(13);
  EXPECT_FALSE(form.txtEdycja.visible());
  EXPECT_EQ(quantity(), "4,000");
  EXPECT_EQ(form.grdSuma.cell(1, GRD_SUMA_QTY_DESPATCHED), "4,000");
}

TEST_F(Wiring, EscapeInTheEditorKeepsTheQuantity) {
  openEditor();
  form.txtEdycja.userType("4");
  form.txtEdycja.userKey(27);
  EXPECT_FALSE(form.txtEdycja.visible());
  EXPECT_EQ(quantity(), "5,000");
}

TEST_F(Wiring, EnterOnTheQuantityOpensItsEditor) {
  form.grdPozycje.userCell(1, GRD_POZ_QTY_DESPATCHED);
  form.grdPozycje.userKey(13);
  EXPECT_TRUE(form.txtEdycja.visible());
}

TEST_F(Wiring, ADoubleClickOnTheEanOpensTheLine) {
  closeNextForm();
  form.grdPozycje.userCell(1, GRD_POZ_EAN);
  form.grdPozycje.userDoubleClick();
  EXPECT_THAT(face.modalForms(), ElementsAre("DlgDodaj"));
}

TEST_F(Wiring, AClickOnAnotherCellTakesTheCleanedQuantityIntoItsOwnCell) {
  openEditor();
  form.txtEdycja.userType("7");
  form.grdPozycje.userCell(1, GRD_POZ_NAME);
  EXPECT_EQ(quantity(), "5,000");
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_NAME), "");
  EXPECT_FALSE(form.txtEdycja.visible());
}

TEST_F(Wiring, LeavingTheEditorForAFieldOfTheHeaderCleansItsText) {
  openEditor();
  form.txtEdycja.userType("2.5");
  form.txtNrAwiza.userFocus();
  EXPECT_EQ(form.txtEdycja.text(), "2,500");
}

TEST_F(Wiring, ScrollingMovesTheOpenEditor) {
  openEditor();
  form.txtEdycja.move({1, 1, 1, 1});
  form.grdPozycje.setRows(30);
  form.grdPozycje.userScroll(5);
  EXPECT_NE(form.txtEdycja.place()->x, 1);
}

TEST_F(Wiring, LeavingACellOfTheTotalsClosesTheirEditor) {
  form.grdSuma.setRow(1);
  form.txtEdycjaSuma.setText("9");
  form.txtEdycjaSuma.setVisible(true);
  form.grdSuma.setColumn(1);
  EXPECT_FALSE(form.txtEdycjaSuma.visible());
  EXPECT_EQ(form.grdSuma.cell(1, 0), "9");
}

TEST_F(Wiring, HostsCallThePublicMethods) {
  EXPECT_EQ(control.MyCalculateWeight(), "0");
  std::string quantityText = "2";
  std::string weight = "1.5";
  EXPECT_EQ(control.MyCalculatePartWeight(quantityText, weight), 3.0);
  EXPECT_EQ(weight, "1,5");
  EXPECT_EQ(control.JednostkiMiaryNazwaToSymbol("Штука"), "PCE");
  EXPECT_EQ(control.GetPackedQuantity("2@A@1@1,500$3@B@1@2"), "3,500");
  EXPECT_EQ(control.RemoveOldPackRef("2@A@1@1$3@B@1@2", {"2"}), "3@B@1@2");
  EXPECT_EQ(control.IndexGrdPozycje(2, 4), 50);
  EXPECT_EQ(control.IndexGrdOpak(2, 4), 34);
  EXPECT_EQ(control.IndexGrdSuma(1, 2), 5);
  EXPECT_THROW(control.IndexGrdPozycje(1425, 0), RunTimeError);
  control.StringToGrid("2@A@1@1,500");
  EXPECT_EQ(control.dlgDodaj.grdPozycje.cell(1, 2), "A");
  EXPECT_EQ(control.GridToString(), "2@A@1@1,500");
  EXPECT_EQ(control.IndexGrdPozycjeDlgDodaj(2, 3), 13);
  EXPECT_THROW(control.IndexGrdPozycjeDlgDodaj(6553, 3), RunTimeError);
  HostValue array = HostArray{0, {"a", "b"}, true};
  control.ArrayRemoveItem(array, 0);
  EXPECT_THAT(std::get<HostArray>(array).elements, ElementsAre("b"));
}

TEST_F(Wiring, TakesDownWithoutABox) {
  control.UserControl_WriteProperties();
  control.UserControl_Terminate();
  EXPECT_THAT(boxes(), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
