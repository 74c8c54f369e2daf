#include "line_dialog.h"
#include "platform/forms/keys.h"
#include "support/logged.h"

namespace awizo::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct LineDialogLoading : ::testing::Test {
  LineDialog test;
  DlgDodaj& dialog = test.dialog;
  std::vector<DropDownList*> linkedLists{&dialog.cboxNazwaProd, &dialog.cboxEANProd,
                                         &dialog.cboxKodAPP, &dialog.cboxKodSprzed};
};

TEST_F(LineDialogLoading, WaitsUntilTheStartUpHasFetchedTheCatalogue) {
  dialog.touch();
  EXPECT_FALSE(dialog.loaded());
  EXPECT_THAT(dialog.cboxKodVAT.rows(), IsEmpty());

  test.loadProducts({{"4601", "Чай"}});
  EXPECT_TRUE(dialog.loaded());
  EXPECT_THAT(dialog.cboxNazwaProd.rows(), ElementsAre("Чай"));
}

TEST_F(LineDialogLoading, HappensAtTheFirstTouchOnly) {
  dialog.allowLoading();
  EXPECT_FALSE(dialog.loaded());
  dialog.touch();
  dialog.touch();
  EXPECT_THAT(dialog.cboxKodVAT.rows(), ElementsAre("S", "E"));

  test.loadProducts({{"4601", "Чай"}});
  EXPECT_THAT(dialog.cboxNazwaProd.rows(), IsEmpty()) << "a later catalogue isn't seen";
}

TEST_F(LineDialogLoading, ForgetsEarlierMarks) {
  test.session.IsoCheckOk = false;
  dialog.productChoice().ProductChangeSource = 3;
  test.load();
  EXPECT_TRUE(test.session.IsoCheckOk);
  EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0);
}

TEST_F(LineDialogLoading, ShowsTheWaitCursorMeanwhile) {
  test.load();
  EXPECT_THAT(test.face.cursors(), ElementsAre(Cursor::wait, Cursor::normal));
}

TEST_F(LineDialogLoading, IsLogged) {
  openLog(test);
  test.loadProducts({{"4601", "Чай"}});
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("Form_Load start", "Form_Load utworzono obiekty MSXML2 ",
                          "Form_Load start przetwarzania slownika produktow",
                          "Form_Load przetworzono slownik produktow",
                          "Form_Load zmiana kursora na poczatkowy"));
}

TEST_F(LineDialogLoading, FillsEachListWithItsOwnValues) {
  test.loadProducts({{"4602", "Чай", "s2", "b1"}, {"4601", "Кофе", "s1", "b2"}});
  EXPECT_THAT(dialog.cboxEANProd.rows(), ElementsAre("4601", "4602"));
  EXPECT_THAT(dialog.cboxNazwaProd.rows(), ElementsAre("Кофе", "Чай"));
  EXPECT_THAT(dialog.cboxKodSprzed.rows(), ElementsAre("s1", "s2"));
  EXPECT_THAT(dialog.cboxKodAPP.rows(), ElementsAre("b1", "b2"));
}

TEST_F(LineDialogLoading, WithoutACatalogueIsLoggedShorter) {
  openLog(test);
  test.load();
  EXPECT_THAT(loggedMessages(test),
              ElementsAre("Form_Load start", "Form_Load utworzono obiekty MSXML2 ",
                          "Form_Load zmiana kursora na poczatkowy"));
}

TEST_F(LineDialogLoading, WithoutACatalogueHidesTheListsOverTheFields) {
  test.load();
  for (const DropDownList* list : linkedLists) {
    EXPECT_FALSE(list->visible()) << list->name();
    EXPECT_THAT(list->rows(), IsEmpty()) << list->name();
  }
  test.show([&] {
    dialog.txtNazwaProdWart.userType("Чай");
    dialog.txtlEANProdWart.userType("4601");
  });
  EXPECT_EQ(dialog.txtNazwaProdWart.text(), "Чай");
}

TEST_F(LineDialogLoading, WithACatalogueTabGoesFromListToList) {
  test.loadProducts({{"4601", "Чай"}});
  std::vector<std::string> way;
  test.show([&] {
    for (int step = 0; step < 5; ++step) {
      way.push_back(test.focus());
      dialog.focus()->userKey(keys::tab);
    }
  });
  EXPECT_THAT(way, ElementsAre("cboxNazwaProd", "cboxEANProd", "cboxKodAPP", "cboxKodSprzed",
                               "cboxJednostkaMiary"));
}

TEST_F(LineDialogLoading, WithoutACatalogueTabGoesFromFieldToField) {
  test.load();
  std::vector<std::string> way;
  test.show([&] {
    for (int step = 0; step < 5; ++step) {
      way.push_back(test.focus());
      dialog.focus()->userKey(keys::tab);
    }
  });
  EXPECT_THAT(way, ElementsAre("txtNazwaProdWart", "txtlEANProdWart", "txtKodKup", "txtKodSprzed",
                               "cboxJednostkaMiary"));
}

TEST_F(LineDialogLoading, OfAnotherDocumentLeavesTheListsEmptyAndVisible) {
  test.loadDocument("<Document-Order/>");
  for (const DropDownList* list : linkedLists) {
    EXPECT_TRUE(list->visible()) << list->name();
    EXPECT_THAT(list->rows(), IsEmpty()) << list->name();
  }
  test.show([&] { dialog.cboxEANProd.userType("4601"); });
  EXPECT_EQ(dialog.txtlEANProdWart.text(), "4601");
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(LineDialogLoading, OfACatalogueWithoutLinesGivesEachListOneEmptyRow) {
  test.loadDocument(
      "<Document-ProductCatalogue><ProductCatalogue-Lines/></Document-ProductCatalogue>");
  for (const DropDownList* list : linkedLists) {
    EXPECT_THAT(list->rows(), ElementsAre("")) << list->name();
  }
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(LineDialogLoading, OfACatalogueWithoutItsListIsReportedAndGoesOn) {
  openLog(test);
  test.loadDocument("<Document-ProductCatalogue/>");
  EXPECT_THAT(test.takeBoxes(), ElementsAre("Произошла ошибка в Form_Load() (Dodaj)|critical|OK|"
                                            "Object variable or With block variable not set"));
  for (const DropDownList* list : linkedLists) {
    EXPECT_THAT(list->rows(), ElementsAre("")) << list->name();
  }
  EXPECT_EQ(loggedMessages(test).back(), "Form_Load zmiana kursora na poczatkowy");
  EXPECT_EQ(test.screen.cursor(), Cursor::normal);
}

TEST_F(LineDialogLoading, SetsUpThePackageTable) {
  test.load();
  const Table& table = dialog.grdPozycje;
  EXPECT_EQ(table.columns(), 5);
  EXPECT_EQ(table.rows(), 2);
  EXPECT_EQ(table.fixedRows(), 1);
  const std::vector<int> widths{0, 0, 4605, 950, 2200};
  const std::vector<Alignment> alignments{Alignment::left, Alignment::centre, Alignment::left,
                                          Alignment::centre, Alignment::right};
  for (int column = 0; column < 5; ++column) {
    const auto place = static_cast<std::size_t>(column);
    EXPECT_EQ(table.columnWidth(column), widths[place]);
    EXPECT_EQ(table.look(1, column).alignment, alignments[place]);
    EXPECT_EQ(table.look(0, column), (CellLook{white, Alignment::centre, true, false}));
  }
  EXPECT_THAT(TestEditor::row(table, 0),
              ElementsAre("№ п.п", "ID упаковки", "Описание упаковки", "Уровень", "Количество"));
  EXPECT_THAT(TestEditor::row(table, 1), Each(""));
}

// More lines than the 16-bit counter holds.

struct TooManyProducts : LineDialogLoading {
  static constexpr int most = 32767;

  void loadLines(int count) {
    std::string lines;
    for (int i = 0; i < count; ++i) {
      lines += catalogueLine({std::to_string(1000000 + i), "товар " + std::to_string(1000000 + i)});
    }
    test.loadDocument(catalogueOf(lines));
  }
};

TEST_F(TooManyProducts, AreNoneUpToTheLimit) {
  loadLines(most);
  EXPECT_THAT(test.face.boxes(), IsEmpty());
  EXPECT_EQ(dialog.cboxEANProd.count(), most);
  EXPECT_EQ(dialog.cboxEANProd.rows().back(), "1032766");
}

TEST_F(TooManyProducts, AreReportedOneByOne) {
  loadLines(most + 3);
  EXPECT_THAT(test.takeBoxes(),
              ElementsAre("Произошла ошибка в Form_Load() (Dodaj)|critical|OK|Overflow",
                          "Произошла ошибка в Form_Load() (Dodaj)|critical|OK|Overflow",
                          "Произошла ошибка в Form_Load() (Dodaj)|critical|OK|Overflow"));
  // The last line read is in the last place that the counter reached.
  EXPECT_EQ(dialog.dictionary().ProdEAN[most], "1032769");
  // The places never reached stay empty, and empty texts come first.
  EXPECT_EQ(dialog.cboxEANProd.count(), most + 3);
  EXPECT_THAT(std::vector<std::string>(dialog.cboxEANProd.rows().begin(),
                                       dialog.cboxEANProd.rows().begin() + 3),
              ElementsAre("", "", "1000000"));
}

TEST_F(TooManyProducts, ARowPastTheCounterFailsAndItsMarkStays) {
  loadLines(most + 3);
  test.face.takeBoxes();
  test.show([&] {
    dialog.cboxEANProd.userChoose(most + 2);
    EXPECT_THAT(test.takeBoxes(),
                ElementsAre("VIRDПроизошла ошибка в  cboxEANProd_Change|critical|OK|Overflow"));
    EXPECT_EQ(dialog.txtlEANProdWart.text(), "1032769");
    EXPECT_EQ(dialog.cboxNazwaProd.text(), "товар 1032769") << "what was done stays";
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 1);

    // Chains of another beginning run under the old mark and don't reset it.
    dialog.cboxNazwaProd.userChoose(2);
    EXPECT_EQ(dialog.cboxEANProd.text(), "1000000");
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0)
        << "the event of that very mark ran to its end";
  });
}

}  // namespace
}  // namespace awizo::test
