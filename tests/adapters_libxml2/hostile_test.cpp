#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

#include "tests/adapters_libxml2/loaded.h"

namespace awizo {
namespace {

using test::loaded;
using test::loadedXml;

/// What the process writes to its error output meanwhile must be nothing.
class Hostile : public testing::Test {
 protected:
  Hostile() { testing::internal::CaptureStderr(); }
  ~Hostile() override { EXPECT_EQ(testing::internal::GetCapturedStderr(), ""); }
};

class Secret : public Hostile {
 protected:
  Secret() { std::ofstream(path) << "<b>secret</b>"; }
  ~Secret() override { std::filesystem::remove(path); }

  const std::string path =
      std::filesystem::temp_directory_path() / ("awizo-test-" + std::to_string(getpid()) + ".xml");
};

TEST_F(Secret, AnExternalEntityIsNotFetched) {
  EXPECT_EQ(loadedXml("<!DOCTYPE a [<!ENTITY e SYSTEM '" + path + "'>]><a>&e;</a>"), "failed");
  EXPECT_EQ(loadedXml("<!DOCTYPE a [<!ENTITY e SYSTEM 'file://" + path + "'>]><a>&e;</a>"),
            "failed");
  EXPECT_EQ(loadedXml("<!DOCTYPE a [<!ENTITY e PUBLIC 'p' '" + path + "'>]><a>&e;</a>"), "failed");
  EXPECT_EQ(loadedXml("<!DOCTYPE a [<!ENTITY e SYSTEM '" + path + "'>]><a b='&e;'/>"), "failed");
  EXPECT_EQ(
      loadedXml("<!DOCTYPE a [<!ENTITY e SYSTEM '" + path + "'><!ENTITY f '&e;'>]><a>&f;</a>"),
      "failed");
}

TEST_F(Secret, AnExternalEntityThatNobodyRefersToDoesNoHarm) {
  EXPECT_EQ(loadedXml("<!DOCTYPE a [<!ENTITY e SYSTEM '" + path + "'>]><a>x</a>"), "<a>x</a>");
}

TEST_F(Secret, AnExternalParameterEntityIsNotFetched) {
  EXPECT_EQ(loadedXml("<!DOCTYPE a [<!ENTITY % p SYSTEM '" + path + "'>%p;]><a>x</a>"), "failed");
}

TEST_F(Secret, AnExternalDocumentTypeIsNotFetched) {
  std::ofstream(path) << "<!ENTITY e 'secret'><!ATTLIST a b CDATA 'secret'>";
  EXPECT_EQ(loadedXml("<!DOCTYPE a SYSTEM '" + path + "'><a>x</a>"), "<a>x</a>");
  EXPECT_EQ(loadedXml("<!DOCTYPE a SYSTEM '" + path + "'><a>&e;</a>"), "failed");
  EXPECT_EQ(loadedXml("<!DOCTYPE a SYSTEM '" + path + "'><a b='&e;'/>"), "failed");
}

TEST_F(Secret, AnInclusionIsAnElementLikeOthers) {
  const std::string text =
      "<a xmlns:x=\"http://www.w3.org/2001/XInclude\"><x:include href=\"" + path + "\"/></a>";
  EXPECT_EQ(loadedXml(text), text);
}

TEST_F(Hostile, TheNetworkIsNotAsked) {
  EXPECT_EQ(loadedXml("<!DOCTYPE a SYSTEM 'http://127.0.0.1:1/a.dtd'><a>x</a>"), "<a>x</a>");
  EXPECT_EQ(loadedXml("<!DOCTYPE a [<!ENTITY e SYSTEM 'http://127.0.0.1:1/'>]><a>&e;</a>"),
            "failed");
}

TEST_F(Hostile, OwnEntitiesAreReplaced) {
  EXPECT_EQ(loaded("<!DOCTYPE a [<!ENTITY e 'x&#38;amp;y'>]><a b='&e;'>&e;</a>")->root().xml(),
            "<a b=\"x&amp;y\">x&amp;y</a>");
}

/// Loads the text and ends with 0 for a refusal, 1 for a document.
[[noreturn]] void loadWithinBounds(const std::string& text) {
  const rlimit seconds{20, 20};
#ifndef __SANITIZE_ADDRESS__  // which takes address space by the terabyte
  constexpr rlim_t megabytes = rlim_t{1} << 20;
  const rlimit memory{2048 * megabytes, 2048 * megabytes};
  setrlimit(RLIMIT_AS, &memory);
#endif
  setrlimit(RLIMIT_CPU, &seconds);
  const auto document = Libxml2().createDocument();
  _exit(document->loadText(text) ? 1 : 0);
}

double secondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Loads in a process of its own that may take only this much memory and time and that says nothing
/// on its error output, and prints what it took.
void expectOutcomeWithinBounds(const std::string& text, bool (*isExpected)(int status)) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> said(std::tmpfile(), &std::fclose);
  const pid_t loader = fork();
  if (loader == 0) {
    dup2(fileno(said.get()), STDERR_FILENO);
    loadWithinBounds(text);
  }
  int status = 0;
  rusage used{};
  ASSERT_EQ(wait4(loader, &status, 0, &used), loader);
  EXPECT_TRUE(isExpected(status)) << status;
  struct stat words {};
  ASSERT_EQ(fstat(fileno(said.get()), &words), 0);
  EXPECT_EQ(words.st_size, 0);
  std::printf("%10.1f MB of text: %5.2f s, at most %ld MB in memory\n",
              static_cast<double>(text.size()) / 1e6,
              secondsOf(used.ru_utime) + secondsOf(used.ru_stime), used.ru_maxrss / 1000);
}

void expectRefusedWithinBounds(const std::string& text) {
  expectOutcomeWithinBounds(
      text, [](int status) { return WIFEXITED(status) && WEXITSTATUS(status) == 0; });
}

void expectAnyOutcomeWithinBounds(const std::string& text) {
  expectOutcomeWithinBounds(text, [](int status) { return WIFEXITED(status); });
}

TEST(EntityBombs, OfEntitiesWithinEntitiesAreRefused) {
  std::string text = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
  for (int level = 1; level <= 30; ++level) {
    const std::string below = "&e" + std::to_string(level - 1) + ";";
    text += "<!ENTITY e" + std::to_string(level) + " '" + below + below + below + below + "'>";
  }
  expectRefusedWithinBounds(text + "]><a>&e30;</a>");
  expectRefusedWithinBounds(text + "]><a b='&e30;'/>");
}

TEST(EntityBombs, OfOneLargeEntityAreRefused) {
  std::string text = "<!DOCTYPE a [<!ENTITY e '" + std::string(500'000, 'x') + "'>]><a>";
  for (int i = 0; i < 100'000; ++i) text += "&e;";
  expectRefusedWithinBounds(text + "</a>");
}

TEST(EntityBombs, OfEntitiesThatHoldElementsAreRefused) {
  std::string text = "<!DOCTYPE a [<!ENTITY e0 '<b><c/></b>'>";
  for (int level = 1; level <= 30; ++level) {
    const std::string below = "&e" + std::to_string(level - 1) + ";";
    text += "<!ENTITY e" + std::to_string(level) + " '" + below + below + below + "'>";
  }
  expectRefusedWithinBounds(text + "]><a>&e30;</a>");
}

TEST(EntityBombs, OfParameterEntitiesAreRefused) {
  std::string text = "<!DOCTYPE a [<!ENTITY % p0 '<!ENTITY e \"x\">'>";
  for (int level = 1; level <= 30; ++level) {
    const std::string below = "&#37;p" + std::to_string(level - 1) + ";";
    text +=
        "<!ENTITY % p" + std::to_string(level) + " '" + below + " " + below + " " + below + "'>";
  }
  expectRefusedWithinBounds(text + "%p30;]><a>&e;</a>");
  EXPECT_EQ(loadedXml(text + "%p0;]><a>&e;</a>"), "<a>x</a>");
}

TEST(EntityBombs, AnEntityThatHoldsItselfIsRefused) {
  expectRefusedWithinBounds("<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a>&e;</a>");
  expectRefusedWithinBounds("<!DOCTYPE a [<!ENTITY e '<b>&e;</b>'>]><a>&e;</a>");
}

TEST(Depth, AMillionLevelsAreRefused) {
  std::string text;
  for (int i = 0; i < 1'000'000; ++i) text += "<a>";
  const std::string open = text;
  for (int i = 0; i < 1'000'000; ++i) text += "</a>";
  expectRefusedWithinBounds(text);
  expectRefusedWithinBounds(open);
}

TEST(Depth, AHundredLevelsAreFine) {
  std::string text = "x";
  for (int i = 0; i < 100; ++i) text = "<a>" + text + "</a>";
  EXPECT_EQ(loadedXml(text), text);
}

TEST(Sizes, AHundredMegabytesOfElementsAreLoaded) {
  std::string text = "<a>";
  const std::string line =
      "<Line>\n  <Line-Item>\n    <EAN>4607001234567</EAN>\n    <ItemDescription>" +
      std::string(2000, 'x') + "</ItemDescription>\n  </Line-Item>\n</Line>\n";
  while (text.size() < 100'000'000) text += line;
  text += "</a>";
  EXPECT_EQ(loaded(text)->root().firstChild().xml().size(), 2000 + 95U);
}

TEST(Sizes, ALargeDocumentThatBeginsWithATextOfSignsIsLoaded) {
  const std::string signs(60'000, '>');
  std::string text = "<a><b>" + signs + "</b>";
  while (text.size() < 20'000'000) text += "<c>x</c>";
  const auto document = loaded(text + "</a>");
  EXPECT_EQ(document->root().firstChild().text(), signs);
}

TEST(Sizes, TwentyMegabytesInWindows1251AreLoaded) {
  std::string bytes = "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<a>";
  std::size_t lines = 0;
  for (; bytes.size() < 22'000'000; ++lines) bytes += "<b>\xCC\xEE\xEB\xEE\xEA\xEE \xE8 \xB9</b>\n";
  const auto document = Libxml2().createDocument();
  ASSERT_TRUE(document->loadBytes(bytes + "</a>"));
  EXPECT_EQ(document->root().selectAll("b").size(), lines);
  EXPECT_EQ(document->root().firstChild().text(), "Молоко и №");
}

TEST(Sizes, AHundredMegabytesOfNonsenseAreRefused) {
  expectRefusedWithinBounds(std::string(100'000'000, 'x'));
  expectRefusedWithinBounds("<a>" + std::string(100'000'000, '<'));
  expectRefusedWithinBounds("<a b='" + std::string(100'000'000, 'x') + "'/>");
  expectRefusedWithinBounds("<" + std::string(100'000'000, 'x') + "/>");
  expectRefusedWithinBounds("<a><!--" + std::string(100'000'000, 'x') + "--></a>");
}

TEST(Sizes, MoreThanAHundredMegabytesOfNothingButTagsAreRefused) {
  const auto repeated = [](const std::string& piece) {
    std::string text = piece;
    while (text.size() < 100'000'000) text += text;
    return "<a>" + text + "</a>";
  };
  expectRefusedWithinBounds(repeated("<b/>"));
  expectRefusedWithinBounds(repeated("<b c='' d=''/>"));
  expectRefusedWithinBounds(repeated("x<!----><?p?>x<![CDATA[y]]>"));
}

TEST(Sizes, AMillionElementsAreFine) {
  std::string text = "<a>";
  for (int i = 0; i < 1'000'000; ++i) text += "<b>x</b>";
  EXPECT_TRUE(Libxml2().createDocument()->loadText(text + "</a>"));
}

TEST(Sizes, OneTextOfAHundredMegabytesDoesNoHarm) {
  expectAnyOutcomeWithinBounds("<a>" + std::string(100'000'000, 'x') + "</a>");
  expectAnyOutcomeWithinBounds("<a>" + std::string(100'000'000, ' ') + "x</a>");
}

TEST(Sizes, TooManyDifferentNamesAreRefused) {
  std::string elements = "<a>";
  std::string attributes = "<a";
  std::string declarations = "<!DOCTYPE a [";
  for (int i = 0; i < 1'000'000; ++i) {
    const std::string number = std::to_string(i);
    elements.append("<x").append(number).append("/>");
    attributes.append(" x").append(number).append("=''");
    declarations.append("<!ATTLIST a x").append(number).append(" CDATA ''>");
  }
  expectRefusedWithinBounds(elements + "</a>");
  expectRefusedWithinBounds(attributes + "/>");
  expectRefusedWithinBounds(declarations + "]><a/>");
}

TEST(Sizes, AThousandDifferentNamesAreFine) {
  std::string text = "<a>";
  for (int i = 0; i < 1000; ++i) text += "<name" + std::to_string(i) + "/>";
  EXPECT_EQ(loadedXml(text + "</a>"), text + "</a>");
}

TEST(Sizes, CutOffAnywhereItIsRefused) {
  const std::string whole =
      "<?xml version=\"1.0\"?><!DOCTYPE a [<!ENTITY e 'x'>]><a b=\"1\">&e;<![CDATA[x]]><!-- c "
      "--><?p i?></a>";
  ASSERT_NE(loadedXml(whole), "failed");
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_EQ(loadedXml(whole.substr(0, length)), "failed") << length;
  }
}

}  // namespace
}  // namespace awizo
