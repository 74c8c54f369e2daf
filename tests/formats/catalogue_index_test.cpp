#include "formats/catalogue_index.h"

#include <cmath>
#include <random>

#include "support/test_editor.h"

namespace awizo::test {
namespace {

TEST(XPathNumber, ReadsDigitsWithOrWithoutAFraction) {
  EXPECT_EQ(xpathNumber("0"), 0.0);
  EXPECT_EQ(xpathNumber("5901234123457"), 5901234123457.0);
  EXPECT_EQ(xpathNumber("007"), 7.0);
  EXPECT_EQ(xpathNumber("1.5"), 1.5);
  EXPECT_EQ(xpathNumber("1."), 1.0);
  EXPECT_EQ(xpathNumber(".5"), 0.5);
  EXPECT_EQ(xpathNumber("-1.5"), -1.5);
  EXPECT_EQ(xpathNumber(" \t\r\n12\n"), 12.0);
}

TEST(XPathNumber, KnowsNoOtherForm) {
  for (const char* text : {"", " ", ".", "-", "-.", "+1", "1e3", "1,5", "1 2", "- 1", "1.2.3",
                           "0x1", "Infinity", "NaN", "1\u00A0", "١"}) {
    EXPECT_EQ(xpathNumber(text), std::nullopt) << text;
  }
}

TEST(XPathNumber, RoundsToTheRangeOfFloatingNumbers) {
  EXPECT_EQ(xpathNumber(std::string(400, '9')), HUGE_VAL);
  EXPECT_EQ(xpathNumber("-" + std::string(400, '9')), -HUGE_VAL);
  EXPECT_EQ(xpathNumber("0." + std::string(400, '0') + "1"), 0.0);
}

/// What the path itself selects, by the platform's own XPath.
XmlNode selected(XmlDocument& catalogue, const std::string& ean) {
  return catalogue.node().selectSingle(
      "/Document-ProductCatalogue/ProductCatalogue-Lines/Line[Line-Item/EAN=" + ean + "]");
}

/// A text that is likely to be some number that others write differently.
std::string randomEan(std::mt19937& random) {
  const auto pick = [&](int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
  };
  std::string text = std::to_string(pick(6));
  const std::string before[] = {"", "0", "00", "-", " ", "+", "10000000000000"};
  const std::string after[] = {"", "", ".0", ".", ".5", " ", "x", "\n"};
  return before[pick(7)] + text + after[pick(8)];
}

TEST(CatalogueIndex, FindsWhatThePathSelects) {
  std::mt19937 random(20261121);
  const Libxml2 xml;
  int found = 0;
  for (int round = 0; round < 300; ++round) {
    std::string text = "<Document-ProductCatalogue><ProductCatalogue-Lines>";
    for (int line = 0; line < 6; ++line) {
      text += "<Line><Line-Item><EAN>" + randomEan(random) + "</EAN>";
      if (random() % 3 == 0) text += "<EAN>" + randomEan(random) + "</EAN>";
      text +=
          random() % 4 == 0 ? "</Line-Item><Line-Item><EAN>" + randomEan(random) + "</EAN>" : "";
      text += "</Line-Item></Line>";
      if (random() % 5 == 0) text += "</ProductCatalogue-Lines><ProductCatalogue-Lines>";
    }
    const auto catalogue = xml.createDocument();
    ASSERT_TRUE(
        catalogue->loadText(text + "</ProductCatalogue-Lines></Document-ProductCatalogue>"));
    const std::vector<std::string> eans{"0",  "1", "2", "003", "4.0", "5", "-1", "100000000000005",
                                        "1.5"};
    const CatalogueIndex index(*catalogue, eans);
    for (const std::string& ean : eans) {
      const XmlNode line = index.find(ean);
      EXPECT_EQ(line.handle(), selected(*catalogue, ean).handle()) << ean << " in " << text;
      found += line ? 1 : 0;
    }
  }
  EXPECT_GT(found, 300);
}

}  // namespace
}  // namespace awizo::test
