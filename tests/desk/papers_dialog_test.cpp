#include "desk/papers_dialog.h"

#include <gmock/gmock.h>

#include "papers/played_painting.h"
#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// Two packages in the document of the window, one of them in the other.
class PapersDialogTest : public ::testing::Test, public Desk {
 protected:
  PapersDialogTest() {
    add("Паллета 1", 0, "395200010000000011");
    add("Коробка 1", 1, "395200010000000028");
    form.txtNrAwiza.setText("ТН/6");
  }

  void add(const std::string& description, int type, const std::string& number) {
    face.onModal([&, this] {
      packageDialog.cboxPackageType.userChoose(type);
      packageDialog.txtPackageDesc.userType(description);
      packageDialog.txtSerialNumberN.userType(number);
      packageDialog.cboxILNLokalizacji.userType("9520002001023");
      packageDialog.btnDodaj.userClick();
    });
    form.btnDodajOpak.userClick();
  }

  /// Does this while the dialog is shown.
  void shown(Paper paper, const std::function<void()>& act) {
    face.onModal([&, this] {
      act();
      dialog.btnClose.userClick();
    });
    dialog.show(papersSource(editor), paper);
  }

  PlayedMeasure measure;
  PlayedEncoder encoder;
  PapersDialog dialog{screen, measure, encoder, settings};
};

TEST_F(PapersDialogTest, ShowsLabelsSheetBySheet) {
  shown(Paper::labels, [this] {
    EXPECT_EQ(dialog.caption(), "Этикетки ТН/6");
    EXPECT_EQ(dialog.fileName(), "Этикетки_ТН_6.pdf");
    EXPECT_EQ(dialog.lblSheet.caption(), "лист 1 из 3") << "the pallet's twice";
    EXPECT_FALSE(dialog.btnPrevious.enabled());
    EXPECT_EQ(dialog.page()->size, papers::a5);
    dialog.btnNext.userClick();
    dialog.btnNext.userClick();
    EXPECT_EQ(dialog.page()->size, papers::a6);
    EXPECT_FALSE(dialog.btnNext.enabled());
    dialog.cboSize.userChoose(2);
    EXPECT_EQ(dialog.lblSheet.caption(), "лист 1 из 3");
    EXPECT_EQ(dialog.page()->size, papers::a6);
  });
}

TEST_F(PapersDialogTest, PapersAreMadeBeforeTheDeliveryDateIsKnown) {
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  shown(Paper::packingList, [this] {
    const std::vector<std::string> texts = textsOf(*dialog.page());
    EXPECT_THAT(texts, Contains(HasSubstr("SSCC 395200010000000028")));
    EXPECT_THAT(texts, Contains("ООО Поставщик, ILN 9520001000010"));
    EXPECT_THAT(texts, Contains("ООО Покупатель, ILN 9520002000019"));
    EXPECT_THAT(texts, Not(Contains("Доставка")));
    EXPECT_FALSE(dialog.cboCopies.enabled());
  });
}

TEST_F(PapersDialogTest, LabelsOfTheMarkedPackagesOnly) {
  packages.userSelect(1, 2, 2, 3);
  EXPECT_THAT(papersSource(editor).marked, ElementsAre(1, 2));
  packages.userSelect(2, 2, 2, 3);
  EXPECT_THAT(papersSource(editor).marked, ElementsAre(2));
  shown(Paper::labels, [this] {
    EXPECT_EQ(dialog.pages().size(), 3U) << "a single row is only where the user is";
    dialog.cboPackages.userChoose(1);
    EXPECT_EQ(dialog.pages().size(), 1U);
  });
}

TEST_F(PapersDialogTest, LabelsThatWereWrittenCountAsDone) {
  dialog.onPdf = [] { return true; };
  dialog.onPrint = [] { return false; };
  shown(Paper::labels, [this] {
    dialog.cboPackages.userChoose(2);
    EXPECT_EQ(dialog.pages().size(), 3U);
    dialog.btnPrint.userClick();
    dialog.cboPackages.userChoose(2);
    EXPECT_EQ(dialog.pages().size(), 3U) << "nothing was printed";
    dialog.btnPdf.userClick();
  });
  add("Коробка 2", 1, "395200010000000035");
  shown(Paper::labels, [this] {
    dialog.cboPackages.userChoose(2);
    EXPECT_EQ(dialog.pages().size(), 1U);
    dialog.btnPdf.userClick();
    dialog.cboPackages.userChoose(2);
    EXPECT_THAT(dialog.pages(), IsEmpty());
    EXPECT_EQ(dialog.lblNotes.caption(), "Таких упаковок нет.");
    EXPECT_FALSE(dialog.btnPdf.enabled());
    EXPECT_EQ(dialog.page(), nullptr);
  });
}

TEST_F(PapersDialogTest, LabelsWhosePrintingNobodySawCountAsDoneWhereTheUserSaysSo) {
  dialog.onPrint = [] { return false; };
  std::vector<std::string> asked;
  const auto answering = [&](Choice choice) {
    return [&asked, choice](const Question& question) {
      asked.push_back(question.text);
      EXPECT_THAT(question.choices, ElementsAre(Choice::printed, Choice::notPrinted));
      EXPECT_EQ(question.harmless, Choice::notPrinted);
      return choice;
    };
  };
  shown(Paper::labels, [&, this] {
    const auto withoutLabel = [this] {
      dialog.cboPackages.userChoose(2);
      return dialog.pages().size();
    };
    dialog.btnPrint.userClick();
    dialog.printingEnded(answering(Choice::notPrinted));
    EXPECT_EQ(withoutLabel(), 3U);
    dialog.btnPrint.userClick();
    EXPECT_EQ(withoutLabel(), 3U) << "the user isn't asked yet";
    dialog.printingEnded(answering(Choice::printed));
    EXPECT_EQ(withoutLabel(), 0U);
    dialog.printingEnded(answering(Choice::printed));
    dialog.cboPaper.userChoose(1);
    dialog.btnPrint.userClick();
    dialog.printingEnded(answering(Choice::printed));
  });
  EXPECT_THAT(asked,
              ElementsAre(HasSubstr("Этикетки напечатаны?"), HasSubstr("«Ещё без этикетки»")))
      << "of a packing list nothing is asked, and of labels once";
}

TEST_F(PapersDialogTest, KeepsSizeCopiesAndPrinter) {
  shown(Paper::labels, [this] {
    dialog.cboCopies.userChoose(3);
    dialog.cboPrinter.userChoose(0);
    EXPECT_EQ(dialog.pages().size(), 6U);
  });
  PapersDialog another(screen, measure, encoder, settings);
  face.onModal([&] {
    EXPECT_EQ(another.cboCopies.text(), "3");
    EXPECT_EQ(another.cboPrinter.text(), "203");
    another.btnClose.userClick();
  });
  another.show(papersSource(editor), Paper::labels);
}

TEST_F(PapersDialogTest, ShowsSavedDocumentsWithTheFoldersNames) {
  const auto source = [this](const char* text) {
    files.put("c:\\a.xml", text);
    return papersSource(platform.xml, platform.files, "c:\\a.xml", folder);
  };
  const PapersSource saved = source(
      "<Document-DespatchAdvice><DespatchAdvice-Parties><Buyer><ILN>9520002000019</ILN></Buyer>"
      "<Seller><ILN>9520001000010</ILN></Seller></DespatchAdvice-Parties>"
      "</Document-DespatchAdvice>");
  EXPECT_EQ(saved.names.seller, "ООО Поставщик");
  EXPECT_EQ(saved.names.buyer, "ООО Покупатель");
  EXPECT_THROW(source("<Document-Order/>"), RunTimeError);
  EXPECT_THROW(source("<"), RunTimeError);
  EXPECT_THROW(papersSource(platform.xml, platform.files, "c:\\none.xml", folder), RunTimeError);
}

}  // namespace
}  // namespace awizo::test
