// awizo-headless --check: what it prints, and the status that it ends with.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/files/files.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

namespace fs = std::filesystem;

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct CheckRun {
  std::vector<std::string> lines;
  int status;
};

class CheckTest : public testing::TestWithParam<const char*> {
 protected:
  CheckRun check(const fs::path& file, std::vector<std::string> more = {}) const {
    more.insert(more.end(), {"--check", file.string(), "--locale", GetParam(), "--settings",
                             supplier.place.settings().string()});
    ChildProcess program(headlessCommand(more));
    CheckRun run;
    while (const auto line = program.readLine()) run.lines.push_back(*line);
    run.status = program.waitForEnd().value_or(-1);
    return run;
  }
  fs::path file(std::string_view bytes) const {
    const fs::path path = supplier.place.documents() / "документ.xml";
    writeFile(path, bytes);
    return path;
  }

  const Supplier supplier;
  const fs::path samples = projectFolder() / "samples";
  const fs::path demo = projectFolder() / "demo";
};

INSTANTIATE_TEST_SUITE_P(BothLocales, CheckTest, testing::Values("ru_RU", "en_US"));

TEST_P(CheckTest, NothingToTellIsStatusZero) {
  const CheckRun run = check(file(
      "<Document-Order><Order-Header><OrderNumber>1</OrderNumber></Order-Header><Order-Lines><Line>"
      "<Line-Item><EAN>1</EAN><OrderedQuantity>1,5</OrderedQuantity></Line-Item></Line>"
      "</Order-Lines></Document-Order>"));
  EXPECT_THAT(run.lines, IsEmpty());
  EXPECT_EQ(run.status, 0);
}

TEST_P(CheckTest, FindingsAreStatusOne) {
  const CheckRun run = check(demo / "data/order.xml");
  EXPECT_THAT(run.lines,
              ElementsAre("строка 11: Order-Parties/Buyer: не читается",
                          "строка 15: Order-Parties/Seller/ILN: не читается",
                          "строка 128: Order-Lines/Line[11]/Line-Item/EAN: строка не пройдёт "
                          "проверку: EAN «ABC» не число",
                          "строка 190: Order-Lines/Line[17]/Line-Item/OrderedUnitNetPrice: строка "
                          "не пройдёт проверку: цена «договорная» не число"));
  EXPECT_EQ(run.status, 1);
}

TEST_P(CheckTest, AFindingOfTheWholeFileNamesNoElement) {
  const CheckRun run = check(file("<Document-Order>\n<Order-"));
  EXPECT_THAT(run.lines,
              ElementsAre("строка 2: не XML, или файл здесь обрывается: документ будет отвергнут"));
  EXPECT_EQ(run.status, 1);
}

TEST_P(CheckTest, AFileThatCantBeReadIsStatusTwo) {
  EXPECT_EQ(check(supplier.place.documents() / "нет.xml").status, 2);
  EXPECT_EQ(check(supplier.place.documents()).status, 2);
  EXPECT_THAT(check(supplier.place.documents()).lines, IsEmpty());
}

TEST_P(CheckTest, OurOwnDocumentIsToldWhatReadingForgets) {
  const CheckRun run = check(samples / "despatch-advice.xml");
  EXPECT_THAT(run.lines, Contains("строка 10: DespatchAdvice-Header/Currency: не читается"));
  EXPECT_THAT(run.lines, Contains("строка 79: DespatchAdvice-Lines/Line[1]/Package-Reference: не "
                                  "читается (всего таких: 4)"));
  EXPECT_EQ(run.lines.size(), 13U);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(check(samples / "despatch-advice-windows-1251.xml").lines.size(), run.lines.size());
}

TEST_P(CheckTest, PartiesAreComparedWithTheLocalFolderAndThePartner) {
  const fs::path advice = samples / "despatch-advice.xml";
  const std::vector<std::string> own{"--offline-path", supplier.place.folder().string(),
                                     "--property", "PartnerILN=9520002000019"};
  EXPECT_EQ(check(advice, own).lines.size(), 13U);
  writeFile(supplier.place.folder() / "userinfo.xml",
            "<u><partner-info><info><iln>77</iln></info></partner-info></u>");
  EXPECT_THAT(
      check(advice,
            {"--offline-path", supplier.place.folder().string(), "--property", "PartnerILN=5"})
          .lines,
      testing::AllOf(
          Contains(HasSubstr("Buyer/ILN: ILN покупателя «9520002000019», а должен быть «5»")),
          Contains(HasSubstr("Seller/ILN: ILN продавца «9520001000010», а должен быть «77»"))));
}

TEST_P(CheckTest, LinesBehindTheLastThatIsCountedAreToldAsThatLine) {
  const std::string order = "<Document-Order><Order-Header><OrderNumber>1</OrderNumber>" +
                            std::string(70000, '\n') + "<Note/></Order-Header></Document-Order>";
  EXPECT_THAT(check(file(order)).lines,
              Contains("строка 65535 или дальше: Order-Header/Note: не читается"));
}

TEST_P(CheckTest, ARelativeNameIsTakenFromTheCurrentFolder) {
  const fs::path path = fs::relative(file("x"), fs::current_path());
  EXPECT_EQ(check(path).lines.size(), 1U);
}

}  // namespace
}  // namespace awizo::test
