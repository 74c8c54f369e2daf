#include <gmock/gmock.h>

#include "checking/checking_desk.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CheckingAnOrder : public CheckingDesk {
 protected:
  std::vector<std::string> checkWith(std::string_view from, std::string_view to) {
    return check(with(soundOrder, from, to));
  }

  const std::string item = "Order-Lines/Line/Line-Item/";
};

INSTANTIATE_TEST_SUITE_P(BothLocales, CheckingAnOrder, testing::Values("ru_RU", "en_US"));

TEST_P(CheckingAnOrder, ASoundOneHasNoFindings) { EXPECT_THAT(check(soundOrder), IsEmpty()); }

TEST_P(CheckingAnOrder, WithoutANumberShowsMinusOne) {
  EXPECT_THAT(checkWith("<OrderNumber>ORD-7</OrderNumber>", ""),
              ElementsAre("1|Order-Header/OrderNumber|нет номера заказа, будет показано «-1»"));
}

TEST_P(CheckingAnOrder, WithoutItsLinesIsntRead) {
  EXPECT_THAT(check("<Document-Order><Order-Header><OrderNumber>1</OrderNumber></Order-Header>"
                    "</Document-Order>"),
              ElementsAre("1|Order-Lines|нет строк: заказ не будет прочитан"));
  EXPECT_THAT(check("<Document-Order><Order-Header><OrderNumber>1</OrderNumber></Order-Header>\n"
                    "<Order-Lines/></Document-Order>"),
              ElementsAre("2|Order-Lines|в заказе нет ни одной строки"));
}

TEST_P(CheckingAnOrder, ADateThatIsNoneStopsTheReading) {
  EXPECT_THAT(checkWith("2026-11-02", "вчера"),
              ElementsAre("3|Order-Header/OrderDate|«вчера» не дата и не время, чтение здесь "
                          "прервётся"));
}

TEST_P(CheckingAnOrder, LinesThatFailTheLineCheckAreTold) {
  EXPECT_THAT(checkWith("4607000000116", "ABC"),
              ElementsAre("4|" + item + "EAN|строка не пройдёт проверку: EAN «ABC» не число"));
  EXPECT_THAT(checkWith(">1.500<", ">полтора<"),
              ElementsAre("5|" + item +
                          "OrderedQuantity|строка не пройдёт проверку: количество "
                          "заказа «полтора» не число"));
  EXPECT_THAT(checkWith("<EAN>", "<OrderedUnitNetPrice>договорная</OrderedUnitNetPrice><EAN>"),
              ElementsAre("4|" + item +
                          "OrderedUnitNetPrice|строка не пройдёт проверку: цена "
                          "«договорная» не число"));
}

TEST_P(CheckingAnOrder, NumbersThatAreRoundedAreToldOnce) {
  EXPECT_THAT(checkWith(">1.500<", ">1.2345<"),
              ElementsAre("5|" + item + "OrderedQuantity|«1.2345» будет прочитано как «" +
                          shown("1.235") + "»"));
  EXPECT_THAT(checkWith("<EAN>", "<OrderedUnitNetPrice>0.004</OrderedUnitNetPrice><EAN>"),
              ElementsAre("4|" + item + "OrderedUnitNetPrice|«0.004» будет прочитано как «" +
                          shown("0.00") + "»"));
  EXPECT_THAT(
      checkWith("<EAN>", "<Weight>0.0004</Weight><EAN>"),
      ElementsAre("4|" + item + "Weight|«0.0004» будет прочитано как «" + shown("0.000") + "»"));
}

TEST_P(CheckingAnOrder, ALineWithoutQuantityGetsMinusOne) {
  EXPECT_THAT(checkWith("<OrderedQuantity>1.500</OrderedQuantity>", ""),
              ElementsAre("3|Order-Lines/Line|нет OrderedQuantity: количеством станет -1"));
}

TEST_P(CheckingAnOrder, AnEanThatACatalogueCantBeAskedForStopsACompletedOrder) {
  EXPECT_THAT(checkWith("<EAN>4607000000116</EAN>", ""),
              ElementsAre("3|Order-Lines/Line|EAN «» нельзя искать в каталоге: с каталогом заказ "
                          "не будет прочитан",
                          "3|Order-Lines/Line|строка не пройдёт проверку: нет значения (EAN)"));
  EXPECT_THAT(checkWith("4607000000116", "46(07"),
              ElementsAre("3|Order-Lines/Line|EAN «46(07» нельзя искать в каталоге: с каталогом "
                          "заказ не будет прочитан",
                          "4|" + item + "EAN|строка не пройдёт проверку: EAN «46(07» не число"));
}

TEST_P(CheckingAnOrder, AChildThatIsNoLineGivesAnEmptyLine) {
  EXPECT_THAT(checkWith("<Line>", "<Row/>\n<Line>"),
              ElementsAre("3|Order-Lines|«Row» не Line: строка будет пустой",
                          "3|Order-Lines|EAN «» нельзя искать в каталоге: с каталогом заказ не "
                          "будет прочитан"));
  EXPECT_THAT(checkWith("<Line>", "<!-- note -->\n<Line>").front(),
              "3|Order-Lines|«#comment» не Line: строка будет пустой");
}

TEST_P(CheckingAnOrder, WhatIsntReadIsTold) {
  EXPECT_THAT(checkWith("<Order-Lines>",
                        "<Order-Parties><Buyer><ILN>1</ILN></Buyer></Order-Parties><Order-Lines>"),
              ElementsAre("3|Order-Parties|не читается"));
  EXPECT_THAT(checkWith("</EAN>", "</EAN><EAN>2</EAN>"),
              ElementsAre("4|" + item + "EAN[2]|повторный элемент, читается только первый"));
}

TEST_P(CheckingAnOrder, AnotherEncodingThanTheDeclaredOneIsTold) {
  EXPECT_THAT(
      checkWith("<OrderedQuantity>", "\xD7\xE0\xE9<OrderedQuantity>"),
      ElementsAre("5||кодировка не та, что объявлена (без объявления — UTF-8): буквы заказа "
                  "будут искажены или он будет отвергнут"));
}

TEST_P(CheckingAnOrder, WhereTheTableIsFullIsTold) {
  std::string lines;
  for (int i = 1; i < 1430; ++i) {
    lines +=
        "<Line><Line-Item><EAN>1</EAN><OrderedQuantity>1</OrderedQuantity></Line-Item></Line>\n";
  }
  const std::vector<std::string> told = checkWith("<Line>", lines + "<Line>");
  ASSERT_EQ(told.size(), 1U);
  EXPECT_TRUE(told.front().starts_with("1426|Order-Lines/Line[1424]")) << told.front();
  EXPECT_TRUE(
      told.front().ends_with("|больше таблица не вмещает, чтение за этим местом прервётся"));
}

}  // namespace
}  // namespace awizo::test
