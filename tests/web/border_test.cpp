#include <cstdint>

#include "hosts/web/core/page_clock.h"
#include "hosts/web/core/page_files.h"
#include "hosts/web/core/page_http.h"
#include "hosts/web/core/page_locale.h"
#include "hosts/web/core/page_records.h"
#include "platform/run_time_error.h"
#include "web/played_border.h"

namespace awizo::web::test {
namespace {

using testing::ElementsAre;

std::int32_t errorNumberOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Border, BytesCrossItAsTheyAre) {
  const std::string bytes = std::string("\0\xFF\r\n", 4) + "молоко";
  PlayedBorder border([](const Fields& question) { return question; });
  EXPECT_THAT(ask({"a", "", bytes}), ElementsAre("a", "", bytes));
  EXPECT_THAT(askNow({}), ElementsAre());
}

TEST(Border, AnAnswerThatBeginsWithAnErrorRaisesIt) {
  for (const std::int32_t number : {7, 52, 53, 61, 68, 70, 71, 75, 76, -2146697211, -2146697208}) {
    const Fields answer{std::to_string(number)};
    EXPECT_EQ(errorNumberOf([&] { checked(answer); }), number);
  }
  EXPECT_EQ(errorNumberOf([] { checked({"999"}); }), errors::pathFileAccess().number());
  EXPECT_THAT(checked({"0", "x"}), ElementsAre("x"));
}

TEST(PageClock, TellsTheLocalTime) {
  PlayedBorder border([](const Fields&) { return Fields{}; });
  border.localSeconds = 1795374599;
  const Moment now = PageClock().now();
  EXPECT_EQ(now.date, makeDate(2026, 11, 22));
  EXPECT_EQ(now.time, (TimeOfDay{19, 9, 59}));
  border.localSeconds = -1;
  EXPECT_EQ(PageClock().now().date, makeDate(1969, 12, 31));
}

TEST(PageLocale, AsksForTheSameDayOnce) {
  PlayedBorder border([](const Fields& question) -> Fields {
    if (question[0] == "facts") return {",", "₽", "dmy", "1", " "};
    return {question[2] + "!"};
  });
  const PageLocale locale("ru_RU");
  for (int time = 0; time < 3; ++time) locale.shortDate(makeDate(2026, 11, 22));
  EXPECT_EQ(border.questions.size(), 2U);
  EXPECT_EQ(locale.shortDate(makeDate(2026, 11, 23)), "2026-11-23!");
  EXPECT_EQ(locale.shortDate(makeDate(2026, 11, 22)), "2026-11-22!");
}

TEST(PageFiles, AreAskedForByThePathsOfAOneRootSystem) {
  PlayedBorder border([](const Fields&) { return Fields{"0", "text"}; });
  PageFiles files;
  EXPECT_EQ(files.readAll("c:\\home\\anna\\a.xml"), "text");
  EXPECT_THAT(border.questions, ElementsAre(ElementsAre("read", "/home/anna/a.xml")));
  EXPECT_EQ(errorNumberOf([&] { files.readAll("d:\\a.xml"); }), 68);
  EXPECT_FALSE(files.folderExists("d:\\"));
}

TEST(PageFiles, ATextIsOpenFromItsCreationToItsEnd) {
  PlayedBorder border([](const Fields&) { return Fields{"0", "5"}; });
  PageFiles().createText("/a.log")->writeLine("строка");
  EXPECT_THAT(border.questions,
              ElementsAre(ElementsAre("open", "/a.log", "create"),
                          ElementsAre("append", "5", "строка\r\n"), ElementsAre("close", "5")));
}

TEST(PageRecords, AreListedMadeReadAndRemoved) {
  PlayedBorder border([](const Fields& question) -> Fields {
    if (question[0] == "records") return {"0", "a", "7", "1763766000", "0", "b", "8", "2", "1"};
    if (question[0] == "newRecord") return {"0", "c", "5"};
    return {"0", "bytes"};
  });
  PageRecords records("/.VIRD.records");
  const std::vector<FoundRecord> found = records.records();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].name, "a");
  EXPECT_EQ(found[0].size, 7U);
  EXPECT_EQ(found[0].changed, 1763766000);
  EXPECT_FALSE(found[0].inUse);
  EXPECT_TRUE(found[1].inUse);
  {
    const NewRecord made = records.create();
    EXPECT_EQ(made.name, "c");
    made.file->append("x");
  }
  EXPECT_EQ(records.read("a"), "bytes");
  records.remove("b");
  EXPECT_THAT(
      border.questions,
      ElementsAre(ElementsAre("records", "/.VIRD.records"),
                  ElementsAre("newRecord", "/.VIRD.records"), ElementsAre("append", "5", "x"),
                  ElementsAre("close", "5"), ElementsAre("readRecord", "/.VIRD.records", "a"),
                  ElementsAre("removeRecord", "/.VIRD.records", "b")));
}

TEST(PageRecords, OneOfAnotherTabCantBeRead) {
  PlayedBorder border([](const Fields&) { return Fields{"70"}; });
  EXPECT_EQ(errorNumberOf([] { PageRecords("/r").read("a"); }), 70);
}

TEST(PageHttp, AReplyIsHandedOverOnce) {
  PlayedBorder border([](const Fields&) { return Fields{"0", "<a/>"}; });
  const std::unique_ptr<HttpRequest> request = PageHttp().createRequest();
  request->open("POST", "https://example.org/a");
  request->setHeader("Cookie", "a=1");
  EXPECT_EQ(errorNumberOf([&] { request->setHeader("Cookie", "a=1\r\nB: 2"); }), 5);
  request->send("body");
  EXPECT_THAT(border.questions, ElementsAre(ElementsAre("http", "POST", "https://example.org/a",
                                                        "body", "Cookie", "a=1")));
  EXPECT_EQ(request->responseText(), "<a/>");
  EXPECT_EQ(errorNumberOf([&] { request->responseText(); }), -2147483638);
}

TEST(PageLocale, FactsAreTakenAsTheyAreTold) {
  const PlayedBorder border([](const Fields& question) -> Fields {
    if (question[0] == "facts") return {",", "₽", "dmy", "1", "\u00A0", " "};
    return {"-1"};
  });
  const PageLocale locale("ru_RU");
  EXPECT_EQ(locale.facts().decimalSeparator, ",");
  EXPECT_EQ(locale.facts().dateOrder, DateOrder::dayMonthYear);
  EXPECT_TRUE(locale.facts().dotSeparatesDates);
  EXPECT_THAT(locale.facts().groupSeparators, ElementsAre("\u00A0", " "));
  EXPECT_EQ(locale.compare("а", "б"), -1);
}

TEST(PageLocale, AsksForTheRanksOfAllTextsInOneField) {
  const PlayedBorder border([](const Fields& question) -> Fields {
    if (question[0] == "facts") return {",", "₽", "dmy", "1", " "};
    return {std::string("\1\0\0\0\0\0\0\0\2\0\0\0", 12)};
  });
  const PageLocale locale("ru_RU");
  EXPECT_THAT(locale.ranks({"в", std::string_view("\0а", 3), "б"}), ElementsAre(2, 1, 0));
  EXPECT_THAT(border.questions.back(), ElementsAre("ranks", "ru_RU", std::string("а\0б\0в\0", 9)));
  EXPECT_THROW(locale.ranks({"а"}), std::logic_error);
}

}  // namespace
}  // namespace awizo::web::test
