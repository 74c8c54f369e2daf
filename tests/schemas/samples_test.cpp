// The samples and the demo's data, and what is broken in them on purpose.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "support/files/files.h"
#include "support/schemas/schema.h"
#include "tests/schemas/with.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Fitting {
  const char* schema;
  const char* file;
};

constexpr Fitting fittings[] = {
    {"despatch-advice-written", "samples/despatch-advice.xml"},
    {"despatch-advice-sound", "samples/despatch-advice.xml"},
    {"despatch-advice-read", "samples/despatch-advice.xml"},
    {"despatch-advice-written", "samples/despatch-advice-windows-1251.xml"},
    {"despatch-advice-sound", "samples/despatch-advice-windows-1251.xml"},
    {"despatch-advice-read", "samples/despatch-advice-windows-1251.xml"},
    {"order-read", "samples/order.xml"},
    {"order-sound", "samples/order.xml"},
    {"product-catalogue", "samples/catalogue.xml"},
    {"delivery-places", "samples/delivery-places.xml"},
    {"exchanges", "samples/delivery-places.xml"},
    {"firms", "samples/userinfo.xml"},
    {"firms", "samples/9520001000010_9520002000019_partner_INFO.xml"},
    {"order-read", "demo/data/order.xml"},
    {"product-catalogue", "demo/data/catalogue.xml"},
    {"delivery-places", "demo/data/delivery-places.xml"},
    {"firms", "demo/data/partner-info.xml"},
    {"firms", "demo/folder/userinfo.xml"},
    {"firms", "demo/folder/9520001000010_9520002000019_partner_INFO.xml"},
};

class SampleTest : public testing::TestWithParam<Fitting> {};

INSTANTIATE_TEST_SUITE_P(All, SampleTest, testing::ValuesIn(fittings));

TEST_P(SampleTest, FitsItsSchema) {
  EXPECT_THAT(Schema(GetParam().schema).problemsOf(projectFile(GetParam().file)), IsEmpty())
      << GetParam().file;
}

TEST(Samples, AreAllHeldAgainstASchema) {
  std::set<std::string> checked;
  for (const Fitting& fitting : fittings) checked.insert(fitting.file);
  const std::filesystem::path root = projectFolder();
  for (const char* folder : {"samples", "demo/data", "demo/folder"}) {
    for (const auto& entry : std::filesystem::directory_iterator(root / folder)) {
      if (entry.path().extension() != ".xml") continue;
      EXPECT_TRUE(checked.contains(entry.path().lexically_relative(root).string())) << entry.path();
    }
  }
}

TEST(DemoOrder, HasTwoFaultyLinesAndNoMore) {
  EXPECT_THAT(Schema("order-sound").problemsOf(projectFile("demo/data/order.xml")),
              ElementsAre(HasSubstr("EAN: Element 'EAN': [facet 'pattern'] The value 'ABC'"),
                          HasSubstr("OrderedUnitNetPrice: Element 'OrderedUnitNetPrice': [facet "
                                    "'pattern'] The value 'договорная'")));
}

/// One thing changed in a sample, and the element of which the schema then complains.
struct Breach {
  const char* schema;
  const char* file;
  const char* from;
  const char* to;
  const char* complaint;
};

constexpr const char* advice = "samples/despatch-advice.xml";
constexpr const char* order = "samples/order.xml";
constexpr const char* written = "despatch-advice-written";
constexpr const char* sound = "despatch-advice-sound";
constexpr const char* asRead = "despatch-advice-read";

constexpr Breach breaches[] = {
    {written, advice, "</Document-DespatchAdvice>", "", "no XML"},
    {written, advice, "<DespatchAdviceNumber>ОТГ-0318<", "<DespatchAdviceNumber><",
     "DespatchAdviceNumber"},
    {written, advice, "<DespatchAdviceDate>2026-11-21<", "<DespatchAdviceDate>21.11.2026<",
     "DespatchAdviceDate"},
    {written, advice, "<DespatchAdviceDate>2026-11-21<", "<DespatchAdviceDate>2026-02-30<",
     "DespatchAdviceDate"},
    {written, advice, ">10:15<", ">24:15<", "DespatchAdviceTime"},
    {written, advice, "<Currency>RUR</Currency>", "", "DespatchAdvice-Header"},
    {written, advice, "<Buyer>", "<Buyer><GLN>1</GLN>", "GLN"},
    {written, advice, "<ParentId>1</ParentId>", "<ParentId>9</ParentId>", "parents"},
    {written, advice, "<PackageId>3</PackageId>", "<PackageId>2</PackageId>", "packages"},
    {written, advice, "<PackageType>09<", "<PackageType>9<", "PackageType"},
    {written, advice, "395200010000000011", "39520001000000001", "SerialNumber"},
    {written, advice, ">62.500<", ">62,500<", "PackageWeight"},
    {written, advice, "<TotalAmount>", "<Total>1</Total><TotalAmount>", "Total"},
    {sound, advice, "<EAN>9520001010019<", "<EAN>ABC<", "EAN"},
    {sound, advice, "<DespatchedQuantity>24.000<", "<DespatchedQuantity>24<", "DespatchedQuantity"},
    {sound, advice, "<UnitNetPrice>64.90<", "<UnitNetPrice>64.9<", "UnitNetPrice"},
    {asRead, advice, "<DespatchAdviceNumber>ОТГ-0318<", "<DespatchAdviceNumber>-1<",
     "DespatchAdviceNumber"},
    {asRead, advice, "<BuyerOrderNumber>ЗК-2026/1150</BuyerOrderNumber>", "",
     "DespatchAdvice-Header"},
    {asRead, advice, "<EstimatedDeliveryDate>2026-11-25<", "<EstimatedDeliveryDate>завтра<",
     "EstimatedDeliveryDate"},
    {asRead, advice, "<DespatchAdviceTime>10:15<", "<DespatchAdviceTime>10.15<",
     "DespatchAdviceTime"},
    {asRead, advice, "<ILN>9520001000010</ILN>", "<ILN/>", "ILN"},
    {asRead, advice, "<Currency>", "<DeliveryTerms/><Currency>", "DeliveryTerms"},
    {asRead, order, "<Document-Order>", "<Document-Order >", "Document-Order"},
    {"order-read", order, "<EAN>9520001010248</EAN>", "", "Line-Item"},
    {"order-read", order, "<Order-Lines>", "<Order-Lines><Row/>", "Row"},
    {"order-read", order, "2026-11-18", "18.11.2026", "OrderDate"},
    {"order-sound", order, ">24.000<", ">две дюжины<", "OrderedQuantity"},
    {"order-sound", order, ">24.000<", "><", "OrderedQuantity"},
    {"product-catalogue", "samples/catalogue.xml", ">64.90<", ">64.90 руб.<", "UnitNetPrice"},
    {"product-catalogue", "samples/catalogue.xml", ">804<", ">дней<", "PeriodFormat"},
    {"delivery-places", "samples/delivery-places.xml", "<iln>9520002001016</iln>", "",
     "localization"},
    {"firms", "samples/userinfo.xml", "<iln>", "<gln>1</gln><iln>", "gln"},
    {"firms", "samples/userinfo.xml", "<user-info>", "<user-info/><!--", "no XML"},
};

class BrokenSampleTest : public testing::TestWithParam<Breach> {};

INSTANTIATE_TEST_SUITE_P(All, BrokenSampleTest, testing::ValuesIn(breaches));

TEST_P(BrokenSampleTest, FailsWhereItIsBroken) {
  const Breach& breach = GetParam();
  const std::string broken = with(projectFile(breach.file), breach.from, breach.to);
  const std::vector<std::string> problems = Schema(breach.schema).problemsOf(broken);
  ASSERT_THAT(problems, Not(IsEmpty())) << breach.from << " -> " << breach.to;
  EXPECT_THAT(problems.front(), HasSubstr(breach.complaint));
}

/// A reference that names no package.
TEST(WrittenDocument, RefersToPackagesThatItHas) {
  std::string text = projectFile(advice);
  const std::size_t reference = text.find("<Package-Reference>");
  text = text.substr(0, reference) +
         with(text.substr(reference), "<PackageId>3</PackageId>", "<PackageId>77</PackageId>");
  EXPECT_THAT(Schema(written).problemsOf(text), ElementsAre(HasSubstr("references")));
}

}  // namespace
}  // namespace awizo::test
