#include "desk/launch_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desk/addresses_as_text.h"
#include "support/files/files.h"

namespace awizo::test {
namespace {

constexpr std::string_view page = "page-url=https://portal.example/vird/page/editor.html\n";

GivenSession parsed(std::string_view bytes) { return parseLaunchFile(bytes, splitText); }

std::string refusalOf(const std::string& text) {
  try {
    parsed(text);
  } catch (const BadLaunchFile& error) {
    return error.what();
  }
  return "(taken)";
}

TEST(LaunchFile, ThatBuildersOfPortalsAreShownIsTaken) {
  const std::string guide = projectFile("docs/integration.md");
  const std::size_t start = guide.find("# Подтверждение отгрузки\npage-url=");
  ASSERT_NE(start, std::string::npos);
  const std::string shown = guide.substr(start, guide.find("```", start) - start);
  EXPECT_EQ(refusalOf(shown), "(taken)");
  EXPECT_EQ(parsed(shown).properties.size(), 3U);
}

TEST(LaunchFile, TellsPageCookieAndProperties) {
  const GivenSession options = parsed(
      "# от портала\r\n\r\npage-url=https://portal.example/vird/page/editor.html\r\n"
      "cookie=session=1; user=anna\r\nOnLine=On\r\nDebugLevel=4\r\nPartnerName=Магазин\r\n"
      "PartnerILN=9520002000019\r\nPartnerURL=partner");
  EXPECT_EQ(options.pageUrl, "https://portal.example/vird/page/editor.html");
  EXPECT_EQ(options.cookie, "session=1; user=anna");
  EXPECT_EQ(options.properties.at("OnLine"), "On");
  EXPECT_EQ(options.properties.at("DebugLevel"), "4");
  EXPECT_EQ(options.properties.at("PartnerName"), "Магазин");
  EXPECT_EQ(options.properties.at("PartnerILN"), "9520002000019");
  EXPECT_EQ(options.properties.at("PartnerURL"), "partner");
}

TEST(LaunchFile, MayBeginWithAByteOrderMark) {
  EXPECT_TRUE(parsed("\xEF\xBB\xBF" + std::string(page)).pageUrl);
}

TEST(LaunchFile, WithoutACookieHasAnEmptyOne) { EXPECT_EQ(parsed(page).cookie, ""); }

TEST(LaunchFile, NeedsNoPageForOffLineWork) {
  const GivenSession options = parsed("OnLine=Off\n");
  EXPECT_FALSE(options.pageUrl);
  EXPECT_FALSE(options.cookie);
}

TEST(LaunchFile, IsRefusedWhenItsAddressIsNoWebAddress) {
  for (const std::string address :
       {"file:///etc/passwd", "ftp://portal.example/a/b", "javascript:alert(1)", "portal.example",
        "", "http://", "http:///a/b/c"}) {
    EXPECT_THAT(refusalOf("page-url=" + address),
                testing::StartsWith("Адрес страницы должен начинаться с http:// или https://"))
        << address;
  }
}

TEST(LaunchFile, IsRefusedWhenExchangesWouldGoElsewhere) {
  // Without folders in the page's address the piece PartnerURL would become the host.
  for (const std::string rest :
       {"page-url=http://portal.example/page.html\nPartnerURL=other.example",
        "page-url=http://portal.example\nPartnerURL=x"}) {
    EXPECT_THAT(refusalOf(rest), testing::StartsWith("Адреса обмена не принадлежат узлу страницы"))
        << rest;
  }
}

TEST(LaunchFile, IsRefusedWhenBroken) {
  const std::string good(page);
  EXPECT_EQ(refusalOf(""), "Не указан адрес страницы (page-url).");
  EXPECT_EQ(refusalOf(good + "что это"), "Строка 2 не вида «имя=значение».");
  EXPECT_EQ(refusalOf(good + "Другое=1"), "Неизвестное имя: Другое.");
  EXPECT_EQ(refusalOf(good + good), "Значение page-url указано дважды.");
  EXPECT_EQ(refusalOf(good + "OnLine=1\nOnLine=Off"), "Значение OnLine указано дважды.");
  EXPECT_EQ(refusalOf(good + "cookie=\xFF"), "Файл записан не в кодировке UTF-8.");
  EXPECT_EQ(refusalOf(good + std::string("cookie=a\0b", 10)), "В файле есть недопустимые знаки.");
  EXPECT_EQ(refusalOf(good + "cookie=a\rX-Header: b"), "В файле есть недопустимые знаки.");
}

TEST(LaunchFile, IsRefusedWhenAValueCouldLeadOutOfTheFolder) {
  const std::string good(page);
  EXPECT_EQ(refusalOf(good + "PartnerILN=../1"), "Недопустимое значение PartnerILN.");
  EXPECT_EQ(refusalOf(good + "PartnerName=..\\x"), "Недопустимое значение PartnerName.");
  EXPECT_EQ(refusalOf(good + "PartnerName=a/b"), "Недопустимое значение PartnerName.");
  EXPECT_EQ(refusalOf(good + "PartnerURL=../../x"), "Недопустимое значение PartnerURL.");
  EXPECT_EQ(refusalOf(good + "DebugLevel=много"), "Недопустимое значение DebugLevel.");
}

TEST(LaunchFile, NamesASessionOnAPageOrOffLine) {
  EXPECT_TRUE(namesSession(parsed(page)));
  EXPECT_TRUE(namesSession(parsed("OnLine=Off")));
  GivenSession other;
  EXPECT_FALSE(namesSession(other));
  other.properties["OnLine"] = "On";
  EXPECT_FALSE(namesSession(other));
}

TEST(LaunchFile, IsRefusedWhenHuge) {
  const std::string full = std::string(page) + "#";
  EXPECT_EQ(refusalOf(full + std::string(largestLaunchFile - full.size(), 'x')), "(taken)");
  EXPECT_EQ(refusalOf(full + std::string(largestLaunchFile - full.size() + 1, 'x')),
            "Файл слишком велик.");
}

TEST(LaunchFile, YieldsToTheCommandLine) {
  GivenSession line;
  line.properties["OnLine"] = "Off";
  line.cookie = "mine";
  const GivenSession both = merged(line, parsed(std::string(page) + "OnLine=On\ncookie=its\n"
                                                                    "PartnerURL=p"));
  EXPECT_EQ(both.properties.at("OnLine"), "Off");
  EXPECT_EQ(both.properties.at("PartnerURL"), "p");
  EXPECT_EQ(both.cookie, "mine");
  EXPECT_EQ(both.pageUrl, "https://portal.example/vird/page/editor.html");
}

}  // namespace
}  // namespace awizo::test
