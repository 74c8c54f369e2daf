#include "hosts/desktop/program/launch_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "hosts/desktop/program/addresses.h"
#include "support/files/files.h"
#include "support/programs/workplace.h"

namespace awizo::desktop {
namespace {

constexpr std::string_view page = "page-url=https://portal.example/vird/page/editor.html\n";

std::string refusalOf(const std::string& text) {
  try {
    parseLaunchFile(text, splitAddress);
  } catch (const BadLaunchFile& error) {
    return error.what();
  }
  return "(taken)";
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

}  // namespace
}  // namespace awizo::desktop
