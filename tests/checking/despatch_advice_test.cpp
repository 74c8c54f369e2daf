#include <gmock/gmock.h>

#include "checking/checking_desk.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CheckingADespatchAdvice : public CheckingDesk {
 protected:
  std::vector<std::string> checkWith(std::string_view from, std::string_view to) {
    return check(with(soundAdvice, from, to));
  }
};

INSTANTIATE_TEST_SUITE_P(BothLocales, CheckingADespatchAdvice, testing::Values("ru_RU", "en_US"));

TEST_P(CheckingADespatchAdvice, ASoundOneHasNoFindings) {
  EXPECT_THAT(check(soundAdvice), IsEmpty());
}

TEST_P(CheckingADespatchAdvice, AFileThatCantBeReadIsAnError) {
  EXPECT_THROW(checkDocument(platform, "c:\\gone.xml", reader), RunTimeError);
}

TEST_P(CheckingADespatchAdvice, WhatIsNoXmlIsToldWhereItBreaks) {
  const char* const text =
      "|"
      "|не XML, или файл здесь обрывается: документ будет отвергнут";
  EXPECT_THAT(check(""), ElementsAre("1" + std::string(text)));
  EXPECT_THAT(check("text"), ElementsAre("1" + std::string(text)));
  EXPECT_THAT(checkWith("</EAN>", ""), ElementsAre("13" + std::string(text)));
  EXPECT_THAT(check(soundAdvice.substr(0, soundAdvice.find("<EAN>"))),
              ElementsAre("11" + std::string(text)));
}

/// The second try puts a declaration before a file that has one of its own.
TEST_P(CheckingADespatchAdvice, TheFirstTryTellsWhereAFileBreaks) {
  EXPECT_THAT(check("<?xml version=\"1.0\"?>\n\n<a>\n</b>"),
              ElementsAre("4|"
                          "|не XML, или файл здесь обрывается: документ будет отвергнут"));
}

TEST_P(CheckingADespatchAdvice, ADocumentOfAnotherKindIsRefused) {
  EXPECT_THAT(check("\n<Document-Invoice/>"),
              ElementsAre("2|Document-Invoice|не Document-DespatchAdvice и не Document-Order: "
                          "документ будет отвергнут"));
}

TEST_P(CheckingADespatchAdvice, OfAnotherSellerOrBuyerIsRefusedAndTheRestIsToldAllTheSame) {
  reader = {"1", "2"};
  EXPECT_THAT(
      checkWith("<EAN>4607000000116<", "<EAN>ABC<"),
      ElementsAre(
          "6|DespatchAdvice-Parties/Buyer/ILN|ILN покупателя «9520002000019», а должен быть "
          "«2»: документ будет отвергнут",
          "7|DespatchAdvice-Parties/Seller/ILN|ILN продавца «9520001000010», а должен быть "
          "«1»: документ будет отвергнут",
          "11|DespatchAdvice-Lines/Line/Line-Item/EAN|строка не пройдёт проверку: EAN "
          "«ABC» не число"));
}

TEST_P(CheckingADespatchAdvice, PartiesArentComparedWithReadersThatNobodyKnows) {
  reader = {};
  EXPECT_THAT(check(soundAdvice), IsEmpty());
}

TEST_P(CheckingADespatchAdvice, PartiesThatArentToldAreRefusedWhoeverReads) {
  const std::string text =
      with(with(soundAdvice, "<Seller><ILN>9520001000010</ILN></Seller>", ""), "9520002000019", "");
  const std::string seller = "6|DespatchAdvice-Parties/Seller/ILN|ILN продавца не указан";
  const std::string buyer = "6|DespatchAdvice-Parties/Buyer/ILN|ILN покупателя не указан";
  reader = {};
  EXPECT_THAT(check(text), ElementsAre(seller + ": документ будет отвергнут",
                                       buyer + ": документ будет отвергнут"));
  reader = {"1", "2"};
  EXPECT_THAT(check(text), ElementsAre(seller + ", а должен быть «1»: документ будет отвергнут",
                                       buyer + ", а должен быть «2»: документ будет отвергнут"));
}

TEST_P(CheckingADespatchAdvice, RequiredValuesThatAreMissingMakeItIncomplete) {
  const std::string text = "|нет обязательного значения: документ будет назван неполным";
  const std::string number = "DespatchAdvice-Header/DespatchAdviceNumber";
  EXPECT_THAT(checkWith("WZ-7", ""), ElementsAre("2|" + number + text));
  EXPECT_THAT(checkWith("WZ-7", "-1"), ElementsAre("2|" + number + text));
  EXPECT_THAT(checkWith("<DespatchAdviceNumber>WZ-7</DespatchAdviceNumber>", ""),
              ElementsAre("1|" + number + text));
  EXPECT_THAT(checkWith("ORD-7", ""),
              ElementsAre("5|DespatchAdvice-Header/BuyerOrderNumber" + text));
  EXPECT_THAT(check("<Document-DespatchAdvice><DespatchAdvice-Header><DespatchAdviceNumber>1"
                    "</DespatchAdviceNumber><BuyerOrderNumber>1</BuyerOrderNumber>"
                    "</DespatchAdvice-Header><DespatchAdvice-Parties><Buyer><ILN>9520002000019"
                    "</ILN></Buyer><Seller><ILN>9520001000010</ILN></Seller>"
                    "</DespatchAdvice-Parties></Document-DespatchAdvice>"),
              ElementsAre("1|DespatchAdvice-Consignment" + text, "1|DespatchAdvice-Lines" + text));
}

TEST_P(CheckingADespatchAdvice, ADateOrTimeThatIsNoneStopsTheReading) {
  EXPECT_THAT(checkWith("2026-11-02", "вчера"),
              ElementsAre("3|DespatchAdvice-Header/DespatchAdviceDate|«вчера» не дата и не время, "
                          "чтение здесь прервётся"));
  EXPECT_THAT(checkWith("<BuyerOrderNumber>",
                        "<DespatchAdviceTime>25:00</DespatchAdviceTime>\n"
                        "<BuyerOrderNumber>"),
              ElementsAre("5|DespatchAdvice-Header/DespatchAdviceTime|«25:00» не дата и не время, "
                          "чтение здесь прервётся"));
}

TEST_P(CheckingADespatchAdvice, ADateThatThePickerLacksStopsTheReading) {
  EXPECT_THAT(checkWith("2026-11-02", "1600-01-01"),
              ElementsAre("3|DespatchAdvice-Header/DespatchAdviceDate|даты «1600-01-01» нет в "
                          "календаре поля, чтение здесь прервётся"));
}

TEST_P(CheckingADespatchAdvice, NumbersThatAreNoneStayAndMostFailTheLineCheck) {
  const std::string item = "DespatchAdvice-Lines/Line/Line-Item/";
  EXPECT_THAT(checkWith(">1.500<", ">полтора<"),
              ElementsAre("12|" + item +
                          "DespatchedQuantity|строка не пройдёт проверку: "
                          "отгруженное количество «полтора» не число"));
  EXPECT_THAT(checkWith("<DespatchedQuantity>1.500</DespatchedQuantity>", ""),
              ElementsAre("10|DespatchAdvice-Lines/Line|строка не пройдёт проверку: нет значения "
                          "(отгруженное количество)"));
  EXPECT_THAT(checkWith("<EAN>4607000000116</EAN>", ""),
              ElementsAre("10|DespatchAdvice-Lines/Line|строка не пройдёт проверку: нет значения "
                          "(EAN)"));
  EXPECT_THAT(checkWith("<EAN>", "<OrderedQuantity>много</OrderedQuantity>\n<EAN>"),
              ElementsAre("11|" + item +
                          "OrderedQuantity|строка не пройдёт проверку: количество "
                          "заказа «много» не число"));
  EXPECT_THAT(checkWith("<EAN>", "<NetAmount>даром</NetAmount>\n<EAN>"),
              ElementsAre("11|" + item +
                          "NetAmount|строка не пройдёт проверку: сумма «даром» не "
                          "число"));
  // The line check reports one column; the others are reported as they are.
  EXPECT_THAT(
      checkWith("<EAN>", "<UnitNetPrice>дорого</UnitNetPrice><TaxRate>нет</TaxRate>\n<EAN>"),
      ElementsAre("11|" + item +
                      "UnitNetPrice|строка не пройдёт проверку: цена «дорого» "
                      "не число",
                  "11|" + item + "TaxRate|«нет» не число, останется как есть"));
}

TEST_P(CheckingADespatchAdvice, AValueIsShownOnOneLineAndALongOneByItsStart) {
  const std::string where =
      "DespatchAdvice-Lines/Line/Line-Item/EAN|строка не пройдёт проверку: EAN ";
  EXPECT_THAT(checkWith("4607000000116", "A\nB"), ElementsAre("11|" + where + "«AB» не число"));
  std::string start;
  for (int i = 0; i < 60; ++i) start += "Я";
  EXPECT_THAT(checkWith("4607000000116", start),
              ElementsAre("11|" + where + "«" + start + "» не число"));
  EXPECT_THAT(checkWith("4607000000116", start + "Б"),
              ElementsAre("11|" + where + "«" + start + "…» не число"));
}

TEST_P(CheckingADespatchAdvice, NumbersThatAreRoundedAreTold) {
  const std::string item = "DespatchAdvice-Lines/Line/Line-Item/";
  for (const char* number : {"1.2345", "1,2345"}) {
    EXPECT_THAT(checkWith(">1.500<", ">" + std::string(number) + "<"),
                ElementsAre("12|" + item + "DespatchedQuantity|«" + number +
                            "» будет прочитано как «" + shown("1.235") + "»"));
  }
  EXPECT_THAT(checkWith("<EAN>", "<TaxRate>12.5</TaxRate>\n<EAN>"),
              ElementsAre("11|" + item + "TaxRate|«12.5» будет прочитано как «13»"));
  // Zeros are no decimals lost.
  EXPECT_THAT(checkWith("<EAN>", "<TaxRate>10.00</TaxRate>\n<EAN>"), IsEmpty());
  EXPECT_THAT(checkWith(">1.500<", ">1,5000000<"), IsEmpty());
}

TEST_P(CheckingADespatchAdvice, EveryNumberOfALineIsLookedAt) {
  const std::string where = "11|DespatchAdvice-Lines/Line/Line-Item/";
  const std::pair<std::string, std::string> numbers[] = {{"OrderedQuantity", "1.235"},
                                                         {"UnitNetPrice", "1.23"},
                                                         {"LineNumber", "1"},
                                                         {"NetAmount", "1.23"},
                                                         {"TaxRate", "1"}};
  for (const auto& [name, rounded] : numbers) {
    const std::string element = "<" + name + ">1.2345</" + name + ">\n<EAN>";
    EXPECT_THAT(
        checkWith("<EAN>", element),
        ElementsAre(where + name + "|«1.2345» будет прочитано как «" + shown(rounded) + "»"));
  }
}

TEST_P(CheckingADespatchAdvice, PackagesReferToOneAnother) {
  const std::string package = "DespatchAdvice-Consignment/Packing-Sequence[2]/";
  const auto checkPackage = [&](const std::string& children) {
    std::vector<std::string> wrong;
    for (const std::string& finding :
         checkWith("</DespatchAdvice-Consignment>",
                   "<Packing-Sequence>" + children +
                       "</Packing-Sequence></DespatchAdvice-Consignment>")) {
      if (finding.find("не читается") == std::string::npos) wrong.push_back(finding);
    }
    return wrong;
  };
  EXPECT_THAT(checkPackage("<PackageId>2</PackageId><ParentId>1</ParentId>"
                           "<SerialNumber>106141412345678908</SerialNumber>"),
              IsEmpty());
  EXPECT_THAT(checkPackage("<PackageId>2</PackageId><ParentId>7</ParentId>"),
              ElementsAre("10|" + package + "ParentId|упаковки «7» в документе нет"));
  EXPECT_THAT(checkPackage("<PackageId>1</PackageId>"),
              ElementsAre("10|" + package + "PackageId|упаковка «1» уже есть"));
  EXPECT_THAT(checkPackage("<PackageId>2</PackageId><SerialNumber/>"),
              ElementsAre("10|" + package + "SerialNumber|Не заполнено поле 'серийный номер'"));
  for (const char* serial : {"1", "10614141234567890A", "1061414123456789080"}) {
    EXPECT_THAT(checkPackage("<PackageId>2</PackageId><SerialNumber>" + std::string(serial) +
                             "</SerialNumber>"),
                ElementsAre("10|" + package + "SerialNumber|Неправильный номер палеты"));
  }
  EXPECT_THAT(
      checkPackage("<PackageId>2</PackageId><SerialNumber>106141412345678901</SerialNumber>"),
      ElementsAre("10|" + package +
                  "SerialNumber|Неправильный номер палеты. Последней- контрольной "
                  "цифре должно быть задано значение 8"));
}

TEST_P(CheckingADespatchAdvice, ReferencesOfLinesNamePackages) {
  EXPECT_THAT(
      checkWith("</Line-Item>",
                "</Line-Item>\n<Package-Reference><PackageId>1</PackageId></Package-Reference>\n"
                "<Package-Reference><PackageId>9</PackageId></Package-Reference>"),
      ElementsAre("14|DespatchAdvice-Lines/Line/Package-Reference[1]|не читается (всего таких: 2)",
                  "15|DespatchAdvice-Lines/Line/Package-Reference[2]/PackageId|упаковки «9» в "
                  "документе нет"));
}

TEST_P(CheckingADespatchAdvice, AReferenceThatIsEmptyNamesNoPackage) {
  EXPECT_THAT(checkWith("</Line-Item>",
                        "</Line-Item>\n<Package-Reference><PackageId/></Package-Reference>"
                        "<Package-Reference><Quantity>1.000</Quantity></Package-Reference>"),
              ::testing::Contains(
                  "14|DespatchAdvice-Lines/Line/Package-Reference[1]/PackageId|упаковки «» в "
                  "документе нет"));
}

TEST_P(CheckingADespatchAdvice, APackageWithoutNumberIsNoneThatCanBeNamed) {
  const std::string package = "<Packing-Sequence><ParentId/></Packing-Sequence>";
  EXPECT_THAT(checkWith("</DespatchAdvice-Consignment>", package + "</DespatchAdvice-Consignment>"),
              ::testing::Contains("10|DespatchAdvice-Consignment/Packing-Sequence[2]/ParentId|"
                                  "упаковки «» в документе нет"));
}

TEST_P(CheckingADespatchAdvice, AParentNeedsThePackageOfTheConsignment) {
  const std::string package = "<Packing-Sequence>\n<PackageId>1</PackageId></Packing-Sequence>";
  const std::string other =
      "<Packing-Sequence><PackageId>2</PackageId><ParentId>1</ParentId></Packing-Sequence>";
  EXPECT_THAT(
      checkWith(package, other),
      ::testing::Contains("8|DespatchAdvice-Consignment/Packing-Sequence/ParentId|упаковки «1» в "
                          "документе нет"));
}

TEST_P(CheckingADespatchAdvice, ElementsThatArentReadAreToldOnceForEachKind) {
  EXPECT_THAT(
      checkWith("<BuyerOrderNumber>", "<Currency>RUR</Currency>\n<Incoterms/>\n<BuyerOrderNumber>"),
      ElementsAre("5|DespatchAdvice-Header/Currency|не читается",
                  "6|DespatchAdvice-Header/Incoterms|неизвестный элемент, не читается"));
  EXPECT_THAT(checkWith("<BuyerOrderNumber>", "<x:Note xmlns:x=\"urn:x\"/>\n<BuyerOrderNumber>"),
              ElementsAre("5|DespatchAdvice-Header/x:Note|неизвестный элемент, не читается"));
  EXPECT_THAT(checkWith("<EAN>", "<!-- goods --><?go on?><EAN>"), IsEmpty());
}

TEST_P(CheckingADespatchAdvice, OfTwoElementsTheFirstIsRead) {
  EXPECT_THAT(checkWith("</EAN>", "</EAN>\n<EAN>2</EAN>"),
              ElementsAre("12|DespatchAdvice-Lines/Line/Line-Item/EAN[2]|повторный элемент, "
                          "читается только первый"));
}

TEST_P(CheckingADespatchAdvice, ElementsWithinAValueBelongToIt) {
  EXPECT_THAT(checkWith("4607000000116", "<a>4607000000116</a>"), IsEmpty());
}

/// Row 1,424 of the lines and row 2,185 of the packages lie beyond the cells of a table.
TEST_P(CheckingADespatchAdvice, WhereATableIsFullIsTold) {
  const std::string full = "|больше таблица не вмещает, чтение за этим местом прервётся";
  const std::string line =
      "<Line><Line-Item><EAN>1</EAN><DespatchedQuantity>1</DespatchedQuantity></Line-Item></"
      "Line>\n";
  std::string lines;
  for (int i = 1; i < 1430; ++i) lines += line;
  const std::vector<std::string> told = checkWith("<Line>", lines + "<Line>");
  ASSERT_EQ(told.size(), 1U);
  EXPECT_TRUE(told.front().starts_with("1433|DespatchAdvice-Lines/Line[1424]")) << told.front();
  EXPECT_TRUE(told.front().ends_with(full));

  std::string packages;
  for (int i = 2; i < 2190; ++i) {
    packages +=
        "<Packing-Sequence><PackageId>" + std::to_string(i) + "</PackageId></Packing-Sequence>\n";
  }
  EXPECT_THAT(
      checkWith("</DespatchAdvice-Consignment>", packages + "</DespatchAdvice-Consignment>"),
      ElementsAre("2192|DespatchAdvice-Consignment/Packing-Sequence[2184]/PackageId" + full));

  lines.clear();
  for (int i = 0; i < 32768; ++i) lines += "<Line/>";
  EXPECT_THAT(checkWith("<Line>", lines + "<Line>"), ElementsAre("10|DespatchAdvice-Lines" + full));
}

/// As on a machine of that encoding; elsewhere the letters are others.
TEST_P(CheckingADespatchAdvice, AnUndeclaredSingleByteFileIsChecked) {
  EXPECT_THAT(checkWith("WZ-7", "\xD7\xE0\xE9"), IsEmpty());
}

TEST(TheReader, IsTheSellerOfTheLocalFolderAndThePartnerOfTheHost) {
  TestSurroundings around;
  around.files.put("c:\\VIRD\\userinfo.xml",
                   "<u><partner-info><info><iln>77</iln></info></partner-info></u>");
  EXPECT_EQ(readerIdentity(around.platform, "c:\\VIRD", "5").sellerILN, "77");
  EXPECT_EQ(readerIdentity(around.platform, "c:\\VIRD", "5").buyerILN, "5");
  EXPECT_EQ(readerIdentity(around.platform, "c:\\gone", "5").sellerILN, "");
  EXPECT_EQ(readerIdentity(around.platform, "", "").sellerILN, "");
}

}  // namespace
}  // namespace awizo::test
