// Rows of a list that fit what is typed.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ProposalsTest : testing::Test {
  ProposalsTest() {
    editor.show();
    editor.click("btnDodaj");
  }
  std::vector<std::string> proposed(std::string_view list, std::string_view text) {
    editor.takeEvents();
    editor.act({{"do", "propose"}, {"on", list}, {"text", text}});
    const std::vector<Json> events = editor.takeEvents();
    std::vector<std::string> texts;
    if (events.size() != 1 || events[0]["event"] != "proposals" || events[0]["text"] != text) {
      ADD_FAILURE() << Json(events);
      return texts;
    }
    const Json rows = editor.get(list)["rows"];
    for (const Json& row : events[0]["rows"]) {
      texts.push_back(row["text"]);
      EXPECT_EQ(rows.at(row["row"].get<std::size_t>()), row["text"]);
    }
    return texts;
  }

  Supplier supplier;
  DemoService service{supplier.place.posted()};
  Conversation editor = supplier.startOnLine(service);
};

TEST_F(ProposalsTest, AreTheRowsWithAllWordsInAnyCase) {
  EXPECT_THAT(proposed("DlgDodaj.cboxNazwaProd", "ЧЁРНЫЙ чай 25"),
              ElementsAre("Чай чёрный с бергамотом, 25 пакетиков"));
  EXPECT_THAT(proposed("DlgDodaj.cboxNazwaProd", "нет такого"), IsEmpty());
  EXPECT_THAT(proposed("DlgDodaj.cboxNazwaProd", ""), IsEmpty());
}

TEST_F(ProposalsTest, OnlyAListHasThem) {
  editor.refused({{"do", "propose"}, {"on", "txtNrAwiza"}, {"text", "a"}});
}

}  // namespace
}  // namespace awizo::test
