#include "hosts/desktop/program/launch_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/files/files.h"
#include "support/programs/workplace.h"

namespace awizo::desktop {
namespace {

constexpr std::string_view page = "page-url=https://portal.example/vird/page/editor.html\n";

std::string refusalOf(const std::string& text) {
  try {
    parseLaunchFile(text);
  } catch (const BadLaunchFile& error) {
    return error.what();
  }
  return "(taken)";
}

TEST(LaunchFile, ThatBuildersOfPortalsAreShownIsTaken) {
  const std::string guide = test::projectFile("docs/integration.md");
  const std::size_t start = guide.find("# Подтверждение отгрузки\npage-url=");
  ASSERT_NE(start, std::string::npos);
  const std::string shown = guide.substr(start, guide.find("```", start) - start);
  EXPECT_EQ(refusalOf(shown), "(taken)");
  EXPECT_EQ(parseLaunchFile(shown).properties.size(), 3U);
}

TEST(LaunchFile, TellsPageCookieAndProperties) {
  const Options options = parseLaunchFile(
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
  EXPECT_TRUE(parseLaunchFile("\xEF\xBB\xBF" + std::string(page)).pageUrl);
}

TEST(LaunchFile, WithoutACookieHasAnEmptyOne) { EXPECT_EQ(parseLaunchFile(page).cookie, ""); }

TEST(LaunchFile, NeedsNoPageForOffLineWork) {
  const Options options = parseLaunchFile("OnLine=Off\n");
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

TEST(LaunchFile, ThatIsMissingOrHugeIsRefused) {
  const test::Workplace place;
  const auto refusal = [](const std::string& path) -> std::string {
    try {
      readLaunchFile(path);
    } catch (const BadLaunchFile& error) {
      return error.what();
    }
    return "(taken)";
  };
  const std::string file = (place.documents() / "портал.awizo").string();
  EXPECT_EQ(refusal(file), "Файл не открывается.");
  test::writeFile(file, std::string(page) + "#" + std::string(70000, 'x'));
  EXPECT_EQ(refusal(file), "Файл слишком велик.");
  test::writeFile(file, page);
  EXPECT_EQ(refusal(file), "(taken)");
}

TEST(LaunchFile, YieldsToTheCommandLine) {
  Options line;
  line.properties["OnLine"] = "Off";
  line.cookie = "mine";
  const Options both = merged(line, parseLaunchFile(std::string(page) + "OnLine=On\ncookie=its\n"
                                                                        "PartnerURL=p"));
  EXPECT_EQ(both.properties.at("OnLine"), "Off");
  EXPECT_EQ(both.properties.at("PartnerURL"), "p");
  EXPECT_EQ(both.cookie, "mine");
  EXPECT_EQ(both.pageUrl, "https://portal.example/vird/page/editor.html");
}

}  // namespace
}  // namespace awizo::desktop
