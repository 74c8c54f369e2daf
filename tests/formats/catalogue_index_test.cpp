#include "formats/catalogue_index.h"

#include <map>
#include <random>

#include "support/error_of.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

constexpr int invalidPath = -2147467259;

struct Ean {
  std::string text;
  bool hasExponent = false;
};

/// Makes texts that are likely to be some number that others write differently, or to look like
/// one.
class Eans {
 public:
  Ean next() {
    const std::string number = pick({"", "", "0", "00", "-", " ", "+", "- ", "."}) +
                               pick({"0", "1", "2", "3", "100", "1000", "100000000000000"});
    if (random_() % 4 == 0) {
      return {number + pick({"e0", "e1", "E2", "e3", "e", "e+1", "E-1", ".0e2", ".e2"}), true};
    }
    return {number + pick({"", "", "", ".0", ".", ".5", " ", "x", "\n", " e1", ".0.0"}), false};
  }
  bool oneIn(unsigned count) { return random_() % count == 0; }

 private:
  std::string pick(const std::vector<std::string>& texts) {
    return texts[random_() % texts.size()];
  }

  std::mt19937 random_{20261121};
};

/// A catalogue of random lines, numbered by their element No: as it is, and with "x" for each text
/// that has an exponent.
struct Catalogue {
  std::string text;
  std::string withoutExponents;

  void add(const std::string& markup) {
    text += markup;
    withoutExponents += markup;
  }
  void addEan(const Ean& ean) {
    text += "<EAN>" + ean.text + "</EAN>";
    withoutExponents += "<EAN>" + (ean.hasExponent ? "x" : ean.text) + "</EAN>";
  }
};

Catalogue randomCatalogue(Eans& eans) {
  Catalogue made;
  made.add("<Document-ProductCatalogue><ProductCatalogue-Lines>");
  for (int line = 0; line < 6; ++line) {
    made.add("<Line><No>" + std::to_string(line) + "</No><Line-Item>");
    made.addEan(eans.next());
    if (eans.oneIn(3)) made.addEan(eans.next());
    if (eans.oneIn(4)) {
      made.add("</Line-Item><Line-Item>");
      made.addEan(eans.next());
    }
    made.add("</Line-Item></Line>");
    if (eans.oneIn(5)) made.add("</ProductCatalogue-Lines><ProductCatalogue-Lines>");
  }
  made.add("</ProductCatalogue-Lines></Document-ProductCatalogue>");
  return made;
}

std::string pathOf(const std::string& ean) {
  return "/Document-ProductCatalogue/ProductCatalogue-Lines/Line[Line-Item/EAN=" + ean + "]";
}

/// Which line is found: its number, "none", "error".
template <class Find>
std::string foundBy(const Find& find) {
  std::string number = "none";
  const int error = errorNumberOf([&] {
    if (const XmlNode line = find()) number = line.selectSingle("No").text();
  });
  EXPECT_TRUE(error == 0 || error == invalidPath) << error;
  return error == 0 ? number : "error";
}

/// Three roads: the index, the path, and the path in brackets, which the XML library evaluates
/// itself. That one knows exponents, so it gets none to see.
TEST(CatalogueIndex, FindsWhatThePathSelects) {
  Eans eans;
  const TestSurroundings around;
  std::map<std::string, int> outcomes;
  for (int round = 0; round < 400; ++round) {
    const Catalogue made = randomCatalogue(eans);
    const auto catalogue = around.document(made.text);
    const auto judged = around.document(made.withoutExponents);
    std::vector<Ean> asked;
    std::vector<std::string> texts;
    for (int i = 0; i < 10; ++i) texts.push_back(asked.emplace_back(eans.next()).text);
    const CatalogueIndex index(*catalogue, texts);
    for (const Ean& ean : asked) {
      const std::string expected = ean.hasExponent ? "error" : foundBy([&] {
        return judged->node().selectSingle("(" + pathOf(ean.text) + ")");
      });
      EXPECT_EQ(foundBy([&] { return index.find(ean.text); }), expected)
          << ean.text << " in " << made.text;
      EXPECT_EQ(foundBy([&] { return catalogue->node().selectSingle(pathOf(ean.text)); }), expected)
          << ean.text << " in " << made.text;
      ++outcomes[expected];
    }
  }
  EXPECT_GT(outcomes["none"], 500);
  EXPECT_GT(outcomes["error"], 500);
  EXPECT_GT(outcomes["0"], 50);
  EXPECT_GT(outcomes["5"], 10);
}

TEST(CatalogueIndex, ComparesNumbersOfAnyLengthAsThePathDoes) {
  const TestSurroundings around;
  const std::vector<std::string> numbers{"100000000000000000",
                                         "100000000000000001",
                                         "999999999999999",
                                         "0999999999999999",
                                         "1000000000000000",
                                         "9007199254740993",
                                         "9007199254740992.0",
                                         std::string(400, '9'),
                                         "1" + std::string(400, '0'),
                                         "0." + std::string(400, '0') + "1",
                                         "-0",
                                         "0"};
  std::string lines;
  for (const std::string& number : numbers) {
    lines += "<Line><No>" + number.substr(0, 20) + "</No><Line-Item><EAN>" + number +
             "</EAN></Line-Item></Line>";
  }
  const auto catalogue =
      around.document("<Document-ProductCatalogue><ProductCatalogue-Lines>" + lines +
                      "</ProductCatalogue-Lines></Document-ProductCatalogue>");
  const CatalogueIndex index(*catalogue, numbers);
  for (const std::string& number : numbers) {
    const std::string found = foundBy([&] { return index.find(number); });
    EXPECT_NE(found, "none") << number;
    EXPECT_EQ(foundBy([&] { return catalogue->node().selectSingle(pathOf(number)); }), found)
        << number;
  }
  EXPECT_EQ(foundBy([&] { return index.find(numbers[1]); }), numbers[0]);
}

}  // namespace
}  // namespace awizo::test
