#include "formats/saving.h"

#include <optional>

#include "formats/despatch_advice_writer.h"
#include "support/cells.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using ::testing::IsEmpty;

constexpr const char* partlyPacked =
    "VIRD|none|YesNo|Отгруженный товар упакован не полностью.\\r\\n"
    "Вы уверены, что хотите отправить документ в таком виде?";

/// A document of one line, wholly packed, under a header that validates.
struct Saving : ::testing::Test {
  TestEditor test;
  AwizoForm& form = test.form;
  DlgWczytajZapisz dialog{test.screen, test.files, test.settings, test.session};

  Saving() {
    form.txtNrAwiza.setText("WZ-1");
    form.txtNrZam.setText("ORD-7");
    form.txtDataAwiza.setDate(makeDate(2026, 11, 21));
    form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 21));
    setLines({{"1,000", "1,000"}});
    TestEditor::fill(form.grdOpakowania, {packageCells()});
    test.session.IloscPozycjiOpak = 1;
    test.files.put("c:\\out\\old.xml", "old bytes");
  }

  /// Lines by despatched and packed quantity.
  void setLines(const std::vector<std::pair<std::string, std::string>>& quantities) {
    std::vector<std::vector<std::string>> rows;
    for (const auto& [despatched, packed] : quantities) {
      std::vector<std::string> cells = lineCells();
      cells[GRD_POZ_EAN] = "5901234123457";
      cells[GRD_POZ_QTY_DESPATCHED] = despatched;
      cells[GRD_POZ_PACKED_QTY] = packed;
      rows.push_back(cells);
    }
    TestEditor::fill(form.grdPozycje, rows);
    test.session.LineCount = static_cast<std::int16_t>(rows.size());
  }

  bool allPacked() {
    CheckAllPacked(test.editor);
    return test.session.AllPacked;
  }

  /// The user saves under this name.
  void save(const std::string& name) {
    test.face.onModal([this, name] {
      EXPECT_FALSE(form.enabled());
      dialog.txtAwizoPlik.userType(name);
      dialog.ImageZapisz.userClick();
    });
    btnZapisz_Click(test.editor, dialog);
    EXPECT_TRUE(form.enabled());
  }

  void expectBoxes(const std::vector<std::string>& boxes) {
    EXPECT_EQ(describe(test.face.takeBoxes()), boxes);
  }
};

TEST_F(Saving, AllIsPackedWhenEveryLineIsAndThereIsAPackage) {
  setLines({{"1,000", "1,000"}, {"2,500", "2,500"}});
  EXPECT_TRUE(allPacked());
}

TEST_F(Saving, NotAllIsPackedWhenOneLineDiffers) {
  setLines({{"1,000", "1,000"}, {"2,500", "2,000"}, {"1,000", "1,000"}});
  EXPECT_FALSE(allPacked());
}

TEST_F(Saving, QuantitiesAreComparedAsTexts) {
  setLines({{"1,000", "1,00"}});
  EXPECT_FALSE(allPacked());
}

TEST_F(Saving, NotAllIsPackedWithoutAPackage) {
  test.session.IloscPozycjiOpak = 0;
  EXPECT_FALSE(allPacked());
}

TEST_F(Saving, WithoutLinesItStaysAsItWas) {
  test.session.LineCount = 0;
  test.session.IloscPozycjiOpak = 0;
  for (const bool earlier : {true, false}) {
    test.session.AllPacked = earlier;
    EXPECT_EQ(allPacked(), earlier);
  }
}

TEST_F(Saving, WritesTheDocumentToTheFileThatTheUserNames) {
  save("c:\\out\\new.xml");
  expectBoxes({});
  const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
  EXPECT_EQ(test.files.bytes("c:\\out\\new.xml"), document->fileBytes());
  EXPECT_THAT(test.files.bytes("c:\\out\\new.xml"),
              ::testing::StartsWith("<Document-DespatchAdvice>"));
}

TEST_F(Saving, TellsTheHostWhatIsKeptOnceItIs) {
  int kept = 0;
  form.deeds.add([&](const Deed& deed) {
    ++kept;
    EXPECT_EQ(deed.kind, Deed::Kind::saved);
    EXPECT_EQ(deed.text, "c:\\out\\new.xml");
    EXPECT_TRUE(test.files.has("c:\\out\\new.xml"));
  });
  save("c:\\nowhere\\new.xml");
  EXPECT_EQ(kept, 0);
  save("c:\\out\\new.xml");
  EXPECT_EQ(kept, 1);
}

TEST_F(Saving, OverwritesAFileWithoutAQuestion) {
  save("c:\\out\\old.xml");
  expectBoxes({});
  EXPECT_THAT(test.files.bytes("c:\\out\\old.xml"), ::testing::HasSubstr("WZ-1"));
}

TEST_F(Saving, ProposesANameFromTheDocumentNumber) {
  test.face.onModal([&] {
    EXPECT_EQ(dialog.txtAwizoPlik.text(), "Подтверждение_отгрузки_WZ-1.xml");
    EXPECT_EQ(dialog.caption(), "Записать подтверждение отгрузки");
    EXPECT_EQ(dialog.btnWczytaj.caption(), "&Zapisz");
    EXPECT_EQ(test.session.LastFilePath, "");
    dialog.DirList.userOpen("c:\\out");
    dialog.ImageZapisz.userClick();
  });
  btnZapisz_Click(test.editor, dialog);
  EXPECT_TRUE(test.files.has("c:\\out\\Подтверждение_отгрузки_WZ-1.xml"));
}

TEST_F(Saving, TheProposedNameHasNoFolderFromTheNumber) {
  form.txtNrAwiza.setText("1/2\\3//4");
  test.face.onModal([&] {
    EXPECT_EQ(dialog.txtAwizoPlik.text(), "Подтверждение_отгрузки_1_2_3__4.xml");
    dialog.ImageZamknij.userClick();
  });
  btnZapisz_Click(test.editor, dialog);
}

TEST_F(Saving, ClosingTheDialogSavesNothing) {
  test.session.LastFilePath = "c:\\out\\old.xml";
  test.face.onModal([&] { dialog.ImageZamknij.userClick(); });
  btnZapisz_Click(test.editor, dialog);
  EXPECT_TRUE(form.enabled());
  EXPECT_EQ(test.files.bytes("c:\\out\\old.xml"), "old bytes");
  expectBoxes({});
}

TEST_F(Saving, AHeaderThatFailsNeverOpensTheDialog) {
  test.face.whileBoxIsOpen([&](const MessageBox&) { EXPECT_TRUE(form.enabled()); });
  form.txtNrAwiza.setText("");
  test.session.IloscPozycjiOpak = 0;
  btnZapisz_Click(test.editor, dialog);
  expectBoxes(
      {"VIRD|exclamation|OK|В поле Номер Документа вводите номер распечатанной товарной "
       "накладной"});
  EXPECT_THAT(test.face.modalForms(), IsEmpty());
  EXPECT_TRUE(form.enabled());
}

TEST_F(Saving, AsksBeforeADocumentThatIsPartlyPacked) {
  setLines({{"1,000", "0,000"}});
  test.face.whileBoxIsOpen([&](const MessageBox&) { EXPECT_TRUE(form.enabled()); });
  test.face.answer(Answer::yes);
  save("c:\\out\\new.xml");
  expectBoxes({partlyPacked});
  EXPECT_TRUE(test.files.has("c:\\out\\new.xml"));
}

TEST_F(Saving, AsksBeforeADocumentWithoutPackages) {
  test.session.IloscPozycjiOpak = 0;
  test.face.answer(Answer::yes);
  save("c:\\out\\new.xml");
  expectBoxes({partlyPacked});
}

TEST_F(Saving, ANoEndsIt) {
  setLines({{"1,000", "0,000"}});
  test.face.whileBoxIsOpen([&](const MessageBox&) { EXPECT_TRUE(form.enabled()); });
  test.face.answer(Answer::no);
  btnZapisz_Click(test.editor, dialog);
  expectBoxes({partlyPacked});
  EXPECT_THAT(test.face.modalForms(), IsEmpty());
  EXPECT_TRUE(form.enabled());
}

TEST_F(Saving, ADocumentThatCantBeBuiltLeavesTheFile) {
  form.grdPozycje.setCell(1, GRD_POZ_EAN, "A&B");
  save("c:\\out\\old.xml");
  expectBoxes({"Произошла ошибка в MakeDesAdv()10|critical|OK|Invalid procedure call or argument"});
  EXPECT_EQ(test.files.bytes("c:\\out\\old.xml"), "old bytes");
}

TEST_F(Saving, AFolderThatIsMissingIsShown) {
  save("c:\\nowhere\\new.xml");
  expectBoxes({"Произошла ошибка в btnZapisz_Click()|critical|OK|Path not found"});
}

TEST_F(Saving, AFileThatCantBeWrittenIsShownAndStaysAsItWas) {
  for (const RunTimeError& error :
       {errors::diskFull(), errors::permissionDenied(), errors::pathFileAccess()}) {
    test.files.failWriting("c:\\out\\old.xml", error);
    save("c:\\out\\old.xml");
    expectBoxes({"Произошла ошибка в btnZapisz_Click()|critical|OK|" + error.description()});
    EXPECT_EQ(test.files.bytes("c:\\out\\old.xml"), "old bytes");
  }
}

TEST_F(Saving, CanBeDoneAgainAfterAFailure) {
  save("c:\\nowhere\\new.xml");
  test.face.takeBoxes();
  save("c:\\out\\new.xml");
  expectBoxes({});
  EXPECT_TRUE(test.files.has("c:\\out\\new.xml"));
}

TEST_F(Saving, BeyondTheReachOfTheCellIndexIsShown) {
  form.grdPozycje.setRows(1427);
  test.session.LineCount = 1426;
  // Up to the limit every line is packed.
  for (int row = 1; row <= 1426; ++row) {
    form.grdPozycje.setCell(row, GRD_POZ_QTY_DESPATCHED, "1");
    form.grdPozycje.setCell(row, GRD_POZ_PACKED_QTY, "1");
  }
  btnZapisz_Click(test.editor, dialog);
  expectBoxes({"Произошла ошибка в btnZapisz_Click()|critical|OK|Overflow"});
  EXPECT_TRUE(form.enabled());
}

}  // namespace
}  // namespace awizo::test
