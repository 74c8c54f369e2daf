#include <gmock/gmock.h>

#include <cmath>
#include <sstream>

#include "commands.h"
#include "papers/gs1.h"
#include "platform/text.h"
#include "support/files/files.h"
#include "support/files/temporary_folder.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

std::string sample() { return (projectFolder() / "samples/despatch-advice.xml").string(); }

class Papers : public ::testing::Test {
 protected:
  std::string path(const std::string& name) const { return (folder.path() / name).string(); }

  Ran make(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), AWIZO_PAPERS);
    return run(arguments);
  }

  /// The pages' texts as a reader of the file finds them.
  std::string textOf(const std::string& pdf) const {
    return replaceAll(run({"pdftotext", "-layout", path(pdf), "-"}).output, "\u00a0", " ");
  }

  /// Draws the page in so many dots per inch; returns the picture's path.
  std::string drawn(const std::string& pdf, int page, int dotsPerInch) const {
    const std::string number = std::to_string(page);
    const std::string picture = path("page" + number + "-" + std::to_string(dotsPerInch));
    run({"pdftoppm", "-gray", "-singlefile", "-r", std::to_string(dotsPerInch), "-f", number, "-l",
         number, path(pdf), picture});
    return picture + ".pgm";
  }

  TemporaryFolder folder;
};

/// What one reader finds: values that it knows to be GS1.
std::vector<std::string> readByZbar(const std::string& picture) {
  std::vector<std::string> found;
  const std::string all = run({"zbarimg", "-q", "--nodbus", "--xml", picture}).output;
  for (const std::string& symbol : split(all, "<symbol ")) {
    const std::size_t begin = symbol.find("CDATA[");
    if (begin == symbol.npos || symbol.find("modifiers='GS1'") == symbol.npos) continue;
    found.push_back(symbol.substr(begin + 6, symbol.find(']', begin) - begin - 6));
  }
  return found;
}

std::vector<std::string> readByZxing(const std::string& picture) {
  std::vector<std::string> found;
  std::string text;
  for (const std::string& line : split(run({"ZXingReader", "-noscale", picture}).output, "\n")) {
    if (line.starts_with("Text:")) {
      text = line.substr(line.find('"') + 1);
      text.pop_back();
    }
    if (line.starts_with("Identifier:") && line.ends_with("]C1")) found.push_back(text);
  }
  return found;
}

/// A picture in shades of grey.
struct Picture {
  std::size_t width = 0;
  std::size_t height = 0;
  std::string bytes;

  bool isDark(std::size_t x, std::size_t y) const {
    return static_cast<unsigned char>(bytes[y * width + x]) < 128;
  }
};

Picture pictureIn(const std::string& path) {
  const std::string all = readFile(path);
  std::istringstream head(all);
  std::string kind;
  int brightest = 0;
  Picture picture;
  head >> kind >> picture.width >> picture.height >> brightest;
  picture.bytes = all.substr(static_cast<std::size_t>(head.tellg()) + 1);
  return picture;
}

struct Measured {
  double left, width, height;
};

/// The lowest symbol of the page, in millimetres.
Measured lowestSymbol(const Picture& picture, double dotsPerInch) {
  // All rows through the bars have as many edges, from 43 bars; of texts, hardly one has.
  const auto changes = [&](std::size_t y) {
    int count = 0;
    for (std::size_t x = 1; x < picture.width; ++x) {
      count += picture.isDark(x, y) != picture.isDark(x - 1, y) ? 1 : 0;
    }
    return count;
  };
  constexpr int edgesOfPackageNumber = 86;
  constexpr std::size_t someRows = 50;
  std::size_t bottom = picture.height - 1;
  while (bottom > someRows && (changes(bottom) != edgesOfPackageNumber ||
                               changes(bottom - someRows) != edgesOfPackageNumber)) {
    --bottom;
  }
  std::size_t top = bottom;
  while (top > 0 && changes(top - 1) == edgesOfPackageNumber) --top;
  std::size_t left = 0;
  while (!picture.isDark(left, bottom)) ++left;
  std::size_t right = picture.width - 1;
  while (!picture.isDark(right, bottom)) --right;
  const double dot = 25.4 / dotsPerInch;
  return {static_cast<double>(left) * dot, static_cast<double>(right + 1 - left) * dot,
          static_cast<double>(bottom + 1 - top) * dot};
}

TEST_F(Papers, LabelsAreReadBackByTwoReadersInEveryResolution) {
  for (const int dots : {203, 300, 600}) {
    const std::string number = std::to_string(dots);
    ASSERT_EQ(
        make({"labels", sample(), "-o", path("l.pdf"), "--dpi", number, "--copies", "1"}).status,
        0);
    const std::string pallet = drawn("l.pdf", 1, dots);
    EXPECT_THAT(readByZbar(pallet), ElementsAre("00395200010000000011")) << dots;
    EXPECT_THAT(readByZxing(pallet), ElementsAre("00395200010000000011")) << dots;
    const std::string box = drawn("l.pdf", 2, dots);
    EXPECT_THAT(readByZbar(box),
                UnorderedElementsAre("00395200010000000028", "02095200010100193724"))
        << dots;
    EXPECT_THAT(readByZxing(box),
                UnorderedElementsAre("00395200010000000028", "02095200010100193724"))
        << dots;
  }
}

TEST_F(Papers, LabelsHaveTheSizesThatTheyShould) {
  ASSERT_EQ(make({"labels", sample(), "-o", path("l.pdf"), "--dpi", "600"}).status, 0);
  const std::string sizes = run({"pdfinfo", "-f", "1", "-l", "4", path("l.pdf")}).output;
  EXPECT_THAT(sizes, HasSubstr("Page    1 size:  420 x 595 pts (A5)"));
  EXPECT_THAT(sizes, HasSubstr("Page    2 size:  420 x 595 pts (A5)"));
  EXPECT_THAT(sizes, HasSubstr("Page    3 size:  297 x 420 pts"));
  EXPECT_THAT(sizes, HasSubstr("Page    4 size:  297 x 420 pts"));
}

TEST_F(Papers, SymbolsHaveTheSizesThatTheyShouldInEveryResolution) {
  constexpr double nearly = 0.1;
  constexpr int modules = 156;
  constexpr int quietModules = 10;
  for (const int dots : {203, 300, 600}) {
    const double module = papers::moduleWidth(dots);
    ASSERT_EQ(make({"labels", sample(), "-o", path("l.pdf"), "--dpi", std::to_string(dots)}).status,
              0);
    for (const int page : {1, 3}) {
      // Looked at closely, whatever they are printed with.
      const Measured symbol = lowestSymbol(pictureIn(drawn("l.pdf", page, 600)), 600);
      EXPECT_NEAR(symbol.width, modules * module, nearly) << dots << ' ' << page;
      EXPECT_NEAR(symbol.height, papers::barHeight, nearly) << dots << ' ' << page;
      const double paper = page == 1 ? 148 : 105;
      EXPECT_NEAR(symbol.left, (paper - modules * module) / 2, 0.6) << dots << ' ' << page;
      EXPECT_GE(symbol.left, quietModules * module) << dots << ' ' << page;
      EXPECT_GE(paper - symbol.left - symbol.width, quietModules * module) << dots << ' ' << page;
    }
  }
}

TEST_F(Papers, LabelsSayWhatTheySayToPeople) {
  ASSERT_EQ(make({"labels", sample(), "-o", path("l.pdf"), "--folder",
                  (projectFolder() / "samples").string(), "--packages", "2"})
                .status,
            0);
  const std::string text = textOf("l.pdf");
  for (const char* words :
       {"ООО «Товары каждый день», ILN 9520001000010", "АО «Магазины рядом», ILN 9520002000019",
        "ILN 9520002001023", "ЗК-2026/1150 от 18.11.2026", "ОТГ-0318 от 21.11.2026",
        "25.11.2026 08:30", "Упаковка 2 из 3 · Коробка · в упаковке 1", "24 кг · 0,6 × 0,4 × 0,4 м",
        "Молоко пастеризованное 2,5 %, 0,9 л", "EAN 9520001010019 · код покупателя 700100 · 24 шт.",
        "(00) 395200010000000028", "(02) 09520001010019 (37) 24"}) {
    EXPECT_THAT(replaceAll(text, "\n         ", " "), HasSubstr(words));
  }
  EXPECT_THAT(run({"pdffonts", path("l.pdf")}).output, HasSubstr("DejaVuSans"));
}

TEST_F(Papers, TheListSaysAllThatIsPacked) {
  ASSERT_EQ(make({"list", sample(), "-o", path("p.pdf")}).status, 0);
  const std::string text = textOf("p.pdf");
  for (const char* words :
       {"Упаковочный лист", "Упаковка 1 из 3 · Паллета · SSCC 395200010000000011",
        "Упаковка 3 из 3 · Коробка · SSCC 395200010000000035", "Кофе молотый, 250 г",
        "3 (Паллета: 1, Коробка: 2)", "34 шт.; 7,5 кг", "Отгружено меньше, чем заказано",
        "лист 1 из 1"}) {
    EXPECT_THAT(text, HasSubstr(words));
  }
  EXPECT_THAT(run({"pdfinfo", path("p.pdf")}).output, HasSubstr("(A4)"));
}

TEST_F(Papers, SheetsAndTableAreMadeToo) {
  ASSERT_EQ(make({"list", "--sheets", "--packages=1,3", sample(), "-o", path("s.pdf")}).status, 0);
  EXPECT_THAT(textOf("s.pdf"), HasSubstr("В ней упаковки: 2, 3"));
  EXPECT_THAT(run({"pdfinfo", path("s.pdf")}).output, HasSubstr("Pages:           2"));
  ASSERT_EQ(make({"csv", sample(), "-o", path("p.csv")}).status, 0);
  EXPECT_THAT(folder.bytes("p.csv"), StartsWith("\xEF\xBB\xBFУпаковка;"));
}

TEST_F(Papers, PackagesWithoutANumberAreNamedAndTheRestIsMade) {
  const std::string advice = replaceAll(projectFile("samples/despatch-advice.xml"),
                                        "<SerialNumber>395200010000000028</SerialNumber>", "");
  const Ran ran = make({"labels", folder.put("a.xml", advice), "-o", path("l.pdf")});
  EXPECT_EQ(ran.status, 1);
  EXPECT_EQ(ran.output, "Упаковка 2 из 3 (Коробка): нет серийного номера\n");
  EXPECT_THAT(folder.names(), Contains("l.pdf"));
}

TEST_F(Papers, WhatCannotBeMadeIsToldAndNothingIsWritten) {
  const std::string broken = folder.put("broken.xml", "<Document-DespatchAdvice><a>");
  const std::string order = folder.put("order.xml", "<Document-Order/>");
  const std::string empty = folder.put("empty.xml", "<Document-DespatchAdvice/>");
  const std::string out = path("out.pdf");
  const std::vector<std::pair<std::vector<std::string>, std::string>> refusals{
      {{"labels", path("none.xml"), "-o", out}, "нет такого файла"},
      {{"labels", folder.path().string(), "-o", out}, "не читается"},
      {{"list", broken, "-o", out}, "это не XML, или файл оборван"},
      {{"list", order, "-o", out}, "это не уведомление об отгрузке, а «Document-Order»"},
      {{"labels", empty, "-o", out}, "в документе нет упаковок"},
      {{"labels", sample(), "-o", out, "--packages", "2-9"}, "упаковки с 1 по 3"},
      {{"labels", sample(), "-o", out, "--folder", path("nowhere")}, "нет такой папки"},
      {{"labels", sample(), "-o", path("nowhere/out.pdf")}, "нет такой папки"},
      {{"labels", sample(), "-o", folder.path().string()}, "не записан"},
      {{"labels", sample(), "-o", "/dev/full"}, "диск полон"},
      {{"labels", sample()}, "where to"},
      {{"labels", "-o", out}, "which file"},
      {{"posters", sample(), "-o", out}, "no such paper: posters"},
      {{"labels", sample(), "-o", out, "--dpi", "20"}, "--dpi"},
      {{"labels", sample(), "-o", out, "--copies", "0"}, "--copies"},
      {{"labels", sample(), "-o", out, "--size", "a7"}, "--size"},
      {{"labels", sample(), "-o", out, "--colour", "red"}, "no such option: --colour"},
      {{"labels", sample(), sample(), "-o", out}, "one file only"},
      {{"csv", sample(), "-o", out, "--dpi", "300"}, "--dpi goes with labels"},
      {{"labels", sample(), "-o", out, "--sheets"}, "--sheets goes with list"},
      {{"list", sample(), "-o", out, "--packages", "1"}, "--packages goes with"},
      {{"labels", sample(), "-o"}, "no value for: -o"},
      {{}, "which paper"}};
  const std::vector<std::string> before = folder.names();
  for (const auto& [arguments, words] : refusals) {
    const Ran ran = make(arguments);
    EXPECT_EQ(ran.status, 2) << words;
    EXPECT_THAT(ran.output, HasSubstr(words));
  }
  EXPECT_EQ(folder.names(), before);
}

TEST_F(Papers, AFailureLeavesTheOldFile) {
  folder.put("out.pdf", "old");
  // No room for the whole of it.
  const Ran ran = run({"/bin/sh", "-c", "ulimit -f 8; trap '' XFSZ; exec \"$@\"", "sh",
                       AWIZO_PAPERS, "labels", sample(), "-o", path("out.pdf")});
  EXPECT_EQ(ran.status, 2);
  EXPECT_THAT(ran.output, HasSubstr("диск полон"));
  EXPECT_EQ(folder.bytes("out.pdf"), "old");
  EXPECT_THAT(folder.names(), ElementsAre("out.pdf"));
}

TEST_F(Papers, TellsOfItself) {
  EXPECT_THAT(make({"--help"}).output, StartsWith("usage: awizo-papers"));
  EXPECT_THAT(make({"--version"}).output, StartsWith("awizo-papers "));
}

}  // namespace
}  // namespace awizo::test
