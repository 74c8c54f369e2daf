#include "formats/packing.h"

#include <gmock/gmock.h>

#include "adapters/libxml2/libxml2.h"
#include "formats/advice_of_document.h"
#include "support/files/files.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

std::string described(const PackedPart& packed) {
  return packed.line->number + ":" + packed.quantity.value_or("?");
}

/// "LEVEL ID LINE:QUANTITY..." for each package, then what isn't packed.
std::vector<std::string> described(const DespatchAdvice& advice) {
  const Packing packing = packingOf(advice);
  std::vector<std::string> all;
  for (const PackedPackage& packed : packing.packages) {
    std::string text = std::to_string(packed.level) + " " + packed.package->id;
    for (const PackedPart& line : packed.lines) text += " " + described(line);
    all.push_back(text);
  }
  for (const PackedPart& line : packing.unpacked) all.push_back("- " + described(line));
  return all;
}

DespatchAdvice packages(std::initializer_list<std::pair<const char*, const char*>> idsAndParents) {
  DespatchAdvice advice;
  for (const auto& [id, parent] : idsAndParents) {
    AdvicePackage& package = advice.packages.emplace_back();
    package.id = id;
    package.parentId = parent;
  }
  return advice;
}

void addLine(DespatchAdvice& advice, const char* number, std::vector<PackageReference> references) {
  AdviceLine& line = advice.lines.emplace_back();
  line.number = number;
  line.packages = std::move(references);
}

TEST(Packing, FollowsThePackagesDepthFirst) {
  EXPECT_THAT(described(packages({{"2", "1"}, {"3", "1"}, {"4", "2"}, {"5", "4"}, {"6", "2"}})),
              ElementsAre("1 2", "2 4", "3 5", "2 6", "1 3"));
}

TEST(Packing, SaysHowMuchOfALineIsInWhichPackage) {
  DespatchAdvice advice = packages({{"2", "1"}, {"3", "2"}});
  addLine(advice, "1", {{"3", "5.000"}, {"2", "1.000"}});
  addLine(advice, "2", {{"3", std::nullopt}});
  EXPECT_THAT(described(advice), ElementsAre("1 2 1:1.000", "2 3 1:5.000 2:?"));
}

TEST(Packing, ShowsWhatIsInNoPackage) {
  DespatchAdvice advice = packages({{"2", "1"}});
  addLine(advice, "1", {});
  addLine(advice, "2", {{"2", "1.000"}, {"9", "3.000"}});
  EXPECT_THAT(described(advice), ElementsAre("1 2 2:1.000", "- 1:?", "- 2:3.000"));
}

TEST(Packing, KeepsPackagesWhoseParentIsNotThere) {
  EXPECT_THAT(described(packages({{"", "1"}, {"2", "9"}, {"3", ""}, {"4", "3"}})),
              ElementsAre("1 ", "1 2", "1 3", "2 4"));
}

TEST(Packing, BeginsACircleAtItsFirstPackage) {
  EXPECT_THAT(described(packages({{"2", "2"}, {"3", "5"}, {"4", "3"}, {"5", "4"}, {"6", "1"}})),
              ElementsAre("1 6", "1 2", "1 3", "2 4", "3 5"));
}

TEST(Packing, OfPackagesWithOneIdTheFirstHolds) {
  DespatchAdvice advice = packages({{"2", "1"}, {"2", "1"}, {"3", "2"}});
  addLine(advice, "1", {{"2", "1.000"}});
  EXPECT_THAT(described(advice), ElementsAre("1 2 1:1.000", "2 3", "1 2"));
}

TEST(Packing, FollowsAChainOfAnyLength) {
  DespatchAdvice advice;
  for (int i = 2; i < 200002; ++i) {
    AdvicePackage& package = advice.packages.emplace_back();
    package.id = std::to_string(i);
    package.parentId = std::to_string(i - 1);
  }
  const Packing packing = packingOf(advice);
  ASSERT_EQ(packing.packages.size(), 200000U);
  EXPECT_EQ(packing.packages.back().level, 200000);
}

TEST(Packing, OfADocumentIsThatOfItsFile) {
  const Libxml2 xml;
  const auto sample = xml.createDocument();
  ASSERT_TRUE(sample->loadBytes(projectFile("samples/despatch-advice.xml")));
  EXPECT_THAT(described(adviceOf(*sample)),
              ElementsAre("1 2 2:2.500", "2 3 1:24.000", "2 4 2:5.000 3:10.000"));
}

}  // namespace
}  // namespace awizo::test
