#include "assistants/distribution_dialog.h"

#include <gmock/gmock.h>

#include "assistants/packing_session.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

struct DistributionDialogTest : testing::Test, PackingSession {
  std::optional<DistributionOrder> asked(const std::function<void()>& act) {
    screen.onModal([&] {
      act();
      if (dialog.shown()) dialog.btnClose.userClick();
    });
    return dialog.ask();
  }
  /// "1 Чай | Короб 1 | 4,25" for each row of the preview.
  std::vector<std::string> preview() const {
    std::vector<std::string> rows;
    for (int row = 1; row < dialog.grdParts.rows(); ++row) {
      const auto cell = [&](int column) { return dialog.grdParts.cell(row, column); };
      rows.push_back(cell(0) + " " + cell(1) + " | " + cell(2) + " | " + cell(3));
    }
    return rows;
  }

  DistributionDialog dialog{control.editor};
};

TEST_F(DistributionDialogTest, ShowsWhatWillComeOfItAndDoesIt) {
  addLinesAndBoxes();
  const auto order = asked([this] {
    EXPECT_EQ(dialog.cboLines.text(), "Всё, что не упаковано");
    EXPECT_THAT(preview(),
                ElementsAre("1 Чай | Короб 1 | 4,25", "1 Чай | Короб 2 | 4",
                            "2 Кофе | Короб 1 | 6,5", "2 Кофе | Короб 2 | 6",
                            "3 Соль | — осталось 0,5: меньше единицы в упаковку не положить | 0,5",
                            "4 Рис | Короб 1 | 1,5", "4 Рис | Короб 2 | 1"));
    EXPECT_EQ(dialog.lblSummary.caption(), "Строк войдёт целиком: 3 из 4.");
    EXPECT_EQ(packed(1), "0,000") << "nothing is done yet";
    dialog.btnDo.userClick();
  });
  ASSERT_TRUE(order);
  distribute(assistance, order->choice, order->plans, {});
  EXPECT_EQ(packed(1), "8,250");
  asked([this] {
    EXPECT_EQ(dialog.lblSummary.caption(), "Раскладывать нечего.");
    EXPECT_FALSE(dialog.btnDo.enabled());
  });
}

TEST_F(DistributionDialogTest, TakesWhatIsMarked) {
  addLinesAndBoxes();
  form.grdPozycje.userSelect(1, GRD_POZ_NAME, 2, GRD_POZ_NAME);
  form.grdOpakowania.userSelect(2, GRD_OPAK_DESC, 1, GRD_OPAK_DESC);
  asked([this] {
    EXPECT_EQ(dialog.cboLines.text(), "Отмеченные строки");
    EXPECT_EQ(dialog.cboPackages.text(), "Отмеченные упаковки");
    dialog.cboSpread.userChoose(2);
    EXPECT_THAT(preview(), ElementsAre("1 Чай | Короб 1 | 7,25", "1 Чай | Короб 1 | 1",
                                       "2 Кофе | Короб 1 | 11,5", "2 Кофе | Короб 1 | 1"));
  });
}

TEST_F(DistributionDialogTest, PutsNothingIntoAPalletThatHoldsBoxes) {
  addBox("Паллета");
  screen.onModal([this] {
    DlgSzczegoly& package = control.dlgSzczegoly;
    package.txtPackageDesc.userType("Короб");
    package.cboxParentPackage.userChoose(0);
    package.cboxILNLokalizacji.userType("9520002000026");
    package.txtSerialNumberN.userType("106141412345678908");
    package.btnDodaj.userClick();
  });
  form.btnDodajOpak.userClick();
  addLine("Чай", "5");
  asked([this] {
    EXPECT_EQ(dialog.cboPackages.text(), "Все, в которых нет других упаковок");
    EXPECT_THAT(preview(), ElementsAre("1 Чай | Короб | 5"));
  });
}

TEST_F(DistributionDialogTest, AsksHowMuchEach) {
  addLinesAndBoxes();
  asked([this] {
    EXPECT_FALSE(dialog.txtEach.enabled());
    dialog.cboSpread.userChoose(1);
    EXPECT_EQ(dialog.lblSummary.caption(), "По сколько класть в каждую? Меньше единицы нельзя.");
    EXPECT_FALSE(dialog.btnDo.enabled());
    dialog.txtEach.userType("3");
    EXPECT_TRUE(dialog.btnDo.enabled());
    EXPECT_EQ(preview().at(0), "1 Чай | Короб 1 | 3");
    EXPECT_EQ(preview().at(1), "1 Чай | Короб 2 | 4,25");
  });
}

TEST_F(DistributionDialogTest, NeedsPackages) {
  addLine("Чай", "5");
  EXPECT_FALSE(asked([this] {
    EXPECT_EQ(dialog.lblSummary.caption(), "В документе нет упаковок.");
    EXPECT_FALSE(dialog.btnDo.enabled());
  }));
}

}  // namespace
}  // namespace awizo::test
