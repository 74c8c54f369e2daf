#include "hosts/common/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hosts/common/given_host.h"
#include "hosts/common/program/about.h"
#include "platform/run_time_error.h"

namespace awizo {
namespace {

TEST(Options, AreReadInBothForms) {
  const Options options =
      parseOptions({"--property", "OnLine=Off", "--property=PartnerURL=a=b", "--page-url",
                    "http://h/a/b", "--cookie", "", "--settings", "/s", "--offline-path", "/o",
                    "--locale", "ru_RU.UTF-8", "--now", "2026-11-30T10:15:05"});
  EXPECT_EQ(options.properties.at("OnLine"), "Off");
  EXPECT_EQ(options.properties.at("PartnerURL"), "a=b");
  EXPECT_EQ(options.pageUrl, "http://h/a/b");
  EXPECT_EQ(options.cookie, "");
  EXPECT_EQ(options.settingsFile, "/s");
  EXPECT_EQ(options.offLinePath, "/o");
  EXPECT_EQ(options.locale, "ru_RU.UTF-8");
  EXPECT_FALSE(options.checkedFile);
  EXPECT_EQ(parseOptions({"--check", "a.xml"}).checkedFile, "a.xml");
  ASSERT_TRUE(options.now);
  EXPECT_EQ(options.now->date, makeDate(2026, 11, 30));
  EXPECT_EQ(options.now->time, (TimeOfDay{10, 15, 5}));
}

TEST(AboutAProgram, IsToldWhenNothingElseIsAsked) {
  EXPECT_EQ(aboutProgram("awizo", "usage: awizo\n", {"--help"}), "usage: awizo\n");
  EXPECT_THAT(aboutProgram("awizo", "usage", {"--version"}),
              testing::MatchesRegex("awizo [0-9]+\\.[0-9]+\\.[0-9]+\n"));
  EXPECT_EQ(aboutProgram("awizo", "usage", {}), "");
  EXPECT_EQ(aboutProgram("awizo", "usage", {"--version", "--cookie", "a"}), "");
}

TEST(Options, ThatAreWrongAreRefused) {
  const std::vector<std::vector<std::string>> wrong{{"--unknown", "1"},
                                                    {"stray"},
                                                    {"--cookie"},
                                                    {"--property", "OnLine"},
                                                    {"--property", "Other=1"},
                                                    {"--now", "2026-11-30"},
                                                    {"--now", "2026-02-30T10:15:00"},
                                                    {"--now", "2026-11-30T24:15:00"},
                                                    {"--locale", ""},
                                                    {"--locale", "ru RU"},
                                                    {"--help", "x"},
                                                    {"-x=1"}};
  for (const auto& arguments : wrong) {
    EXPECT_THROW(parseOptions(arguments), BadArguments) << arguments.front();
  }
}

TEST(Page, WithoutAnOptionRaisesAnErrorAndAnEmptyTextIsAValue) {
  const Options none;
  EXPECT_THROW(OptionsPage(none).url(), RunTimeError);
  EXPECT_THROW(OptionsPage(none).cookie(), RunTimeError);
  Options empty;
  empty.cookie = "";
  EXPECT_EQ(OptionsPage(empty).cookie(), "");
}

TEST(Bag, KeepsWhatTheControlWroteApartFromWhatItWasGiven) {
  Options options;
  options.properties["OnLine"] = "Off";
  OptionsBag bag(options);
  EXPECT_EQ(bag.read("OnLine"), "Off");
  EXPECT_EQ(bag.read("DebugLevel"), "");
  EXPECT_TRUE(bag.written().empty());
  bag.write("OnLine", "On");
  EXPECT_EQ(bag.written().at("OnLine"), "On");
}

}  // namespace
}  // namespace awizo
