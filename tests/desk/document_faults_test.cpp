#include "desk/document_faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desk/fault_list.h"
#include "platform/forms/keys.h"
#include "support/documents.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A document with nothing wrong: two lines, in one box that stands on a pallet.
struct DocumentFaults : ::testing::Test {
  explicit DocumentFaults(std::string_view localeName = "ru_RU") : test(localeName) {
    form.txtNrAwiza.setText("ТН-6");
    form.txtNrZam.setText("ЗК-1");
    form.txtDataAwiza.setDate(makeDate(2026, 11, 21));
    form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 22));
    putLines(test.editor, 2);
    putPackages(test.editor, 2, [](int row) { return row - 1; });
    for (int row = 1; row <= 2; ++row) {
      lines.setCell(row, GRD_POZ_PACKED_QTY, "1,000");
      lines.setCell(row, GRD_POZ_PACK_REFS, "3@П2@2@1,000");
      packages.setCell(row, GRD_OPAK_SERIAL_NUMBER, "10614141234567890" + std::to_string(row));
    }
  }

  std::vector<std::string> found() const {
    std::vector<std::string> texts;
    for (const DocumentFault& fault : faultsOf(test.editor)) {
      texts.push_back(fault.where + ": " + fault.what);
    }
    return texts;
  }

  TestEditor test;
  AwizoForm& form = test.form;
  Table& lines = form.grdPozycje;
  Table& packages = form.grdOpakowania;
};

struct AmericanDocumentFaults : DocumentFaults {
  AmericanDocumentFaults() : DocumentFaults("en_US") {}
};

TEST_F(DocumentFaults, NoneInADocumentThatIsRight) { EXPECT_THAT(found(), IsEmpty()); }

TEST_F(DocumentFaults, EveryRuleOfTheHeaderThatFailsIsTold) {
  form.txtNrAwiza.setText("");
  form.txtNrZam.setText(" ");
  form.txtCodeByBuyer.setText("П-00417");
  form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 20));
  EXPECT_THAT(
      found(),
      ElementsAre(
          "Заголовок: В поле Номер Документа вводите номер распечатанной товарной накладной",
          "Заголовок: Дата доставки не может быть меньше текущей даты",
          "Заголовок: Дата документа не может быть больше даты доставки",
          "Заголовок: В поле ‘Номер заказа’ не указана величина",
          "Заголовок: Неправильно количество в поле 'Код поставщика у покупателя'"));
  EXPECT_EQ(faultsOf(test.editor)[1].place, &form.txtEstimatedDeliveryDate);
  form.txtDataAwiza.setDate(std::nullopt);
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  EXPECT_THAT(found(), Contains("Заголовок: В поле ‘Дата документа’ не указана величина"));
  EXPECT_THAT(found(),
              Contains("Заголовок: В поле ‘Запланированная дата доставки’ не указана величина"));
}

TEST_F(DocumentFaults, ALineTellsWhyItIsPinkAndWhatIsLeftToPack) {
  lines.setCell(2, GRD_POZ_NAME, "Кофе");
  lines.setCell(2, GRD_POZ_PRICE, "abc");
  lines.setCell(2, GRD_POZ_PACKED_QTY, "0,250");
  EXPECT_THAT(found(), ElementsAre("Строка 2 · Кофе: цена не число",
                                   "Строка 2 · Кофе: отгружено 1, упаковано 0,25, осталось 0,75"));
  EXPECT_EQ(faultsOf(test.editor).back().row, 2);
  EXPECT_EQ(faultsOf(test.editor).back().place, &lines);
}

TEST_F(DocumentFaults, MorePackedThanDespatchedIsSaid) {
  lines.setCell(1, GRD_POZ_PACKED_QTY, "2,000");
  EXPECT_THAT(found(),
              ElementsAre("Строка 1: отгружено 1, упаковано 2: упаковано больше, чем отгружено"));
}

TEST_F(AmericanDocumentFaults, WhatIsLeftStandsInTheLocalesForm) {
  for (int row = 1; row <= 2; ++row) {
    lines.setCell(row, GRD_POZ_NET_AMOUNT, "2.00");
    lines.setCell(row, GRD_POZ_QTY_ORDERED, "5.000");
    lines.setCell(row, GRD_POZ_QTY_DESPATCHED, "1.500");
    lines.setCell(row, GRD_POZ_PACKED_QTY, row == 1 ? "1.500" : "0.250");
  }
  EXPECT_THAT(found(), ElementsAre("Строка 2: отгружено 1.5, упаковано 0.25, осталось 1.25"));
}

TEST_F(DocumentFaults, PackagesWithoutANumberOrContentsAndNumbersUsedTwiceAreTold) {
  putPackages(test.editor, 4, [](int row) { return row == 2 ? 1 : 0; });
  for (const auto& [row, number] :
       {std::pair{1, "1"}, std::pair{2, " "}, std::pair{3, "-1"}, std::pair{4, "1"}}) {
    packages.setCell(row, GRD_OPAK_SERIAL_NUMBER, number);
  }
  EXPECT_THAT(found(), ElementsAre("Упаковка 2 · П2: нет номера", "Упаковка 3 · П3: нет номера",
                                   "Упаковка 3 · П3: пустая",
                                   "Упаковка 4 · П4: номер 1 уже есть у упаковки 1",
                                   "Упаковка 4 · П4: пустая"));
}

TEST_F(DocumentFaults, AnEmptyDocumentHasNoLines) {
  putLines(test.editor, 0);
  putPackages(test.editor, 0, {});
  EXPECT_THAT(found(), ElementsAre("Строки: в документе нет ни одной строки"));
}

TEST_F(DocumentFaults, LinesWithoutAnyPackageAreTold) {
  putPackages(test.editor, 0, {});
  EXPECT_THAT(found(), ElementsAre("Упаковки: в документе нет упаковок"));
}

TEST_F(DocumentFaults, TheUserGoesToTheRowOrTheField) {
  goTo({"", "", &lines, 2});
  EXPECT_EQ(form.focus(), &lines);
  EXPECT_EQ(lines.row(), 2);
  goTo({"", "", &form.txtCodeByBuyer, 0});
  EXPECT_EQ(form.focus(), &form.txtCodeByBuyer);
}

struct FaultListTest : DocumentFaults {
  FaultList list{test.screen};
  std::vector<DocumentFault> faults{{"Строка 1", "цена не число", &lines, 1},
                                    {"Строка 2", "нет EAN", &lines, 2}};
};

TEST_F(FaultListTest, EnterChoosesTheMarkedOne) {
  test.face.onModal([&] {
    EXPECT_EQ(list.caption(), "Что не так: 2");
    EXPECT_EQ(TestEditor::row(list.grdFaults, 2),
              (std::vector<std::string>{"Строка 2", "нет EAN"}));
    EXPECT_EQ(list.focus(), &list.grdFaults);
    list.grdFaults.userKey(keys::down);
    list.grdFaults.userKey(keys::enter);
  });
  const auto chosen = list.choose(faults);
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->row, 2);
}

TEST_F(FaultListTest, EscapeChoosesNothing) {
  test.face.onModal([&] { list.grdFaults.userKey(keys::escape); });
  EXPECT_FALSE(list.choose(faults));
}

TEST_F(FaultListTest, ADocumentThatIsRightHasNothingToGoTo) {
  test.face.onModal([&] {
    EXPECT_EQ(list.caption(), "Замечаний нет");
    EXPECT_FALSE(list.btnGo.enabled());
    list.grdFaults.userDoubleClick();
    list.userClose();
  });
  EXPECT_FALSE(list.choose({}));
}

}  // namespace
}  // namespace awizo::test
