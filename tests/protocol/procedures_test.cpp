// How lines call procedures: arguments, results, arguments that the procedure changes.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "protocol/sample_forms.h"

namespace awizo::protocol::test {
namespace {

class ProceduresTest : public testing::Test {
 protected:
  Procedures& procedures() { return client.sample.dispatcher.procedures; }
  std::string call(const std::string& args) {
    return client.closingOf(R"({"call":"P","args":)" + args + "}").dump();
  }

  SampleClient client;
};

TEST_F(ProceduresTest, ValuesGoInAndTheResultComesOut) {
  procedures().add("P", [](const std::string& text, std::int16_t count, bool twice, double factor) {
    return text + std::to_string(count) + (twice ? "!" : "") + std::to_string(factor > 1);
  });
  EXPECT_EQ(call(R"(["a",-3,true,1.5])"), R"({"ok":true,"value":"a-3!1"})");
}

TEST_F(ProceduresTest, WithoutResultHasNoValue) {
  procedures().add("P", [] {});
  EXPECT_EQ(call("[]"), R"({"ok":true})");
  EXPECT_EQ(client.closingOf(R"({"call":"P"})").dump(), R"({"ok":true})");
}

TEST_F(ProceduresTest, ChangedArgumentsComeBackBesideTheValue) {
  procedures().add("P", [](std::string& text, std::int32_t by) {
    text += "x";
    return by + 1;
  });
  EXPECT_EQ(call(R"(["a",2])"), R"({"ok":true,"value":3,"args":["ax",2]})");
}

TEST_F(ProceduresTest, ArraysAndDatesAreArguments) {
  procedures().add("P", [](std::vector<std::int32_t>& numbers, Date date) {
    std::ranges::reverse(numbers);
    return std::vector<std::string>{std::to_string(static_cast<int>(date.year()))};
  });
  EXPECT_EQ(call(R"([[1,2],"2026-11-30"])"),
            R"({"ok":true,"value":["2026"],"args":[[2,1],"2026-11-30"]})");
}

TEST_F(ProceduresTest, TrailingOptionalArgumentMayBeLeftOut) {
  procedures().add("P", [](const std::string& text, std::optional<std::int16_t> level) {
    return text + std::to_string(level.value_or(4));
  });
  EXPECT_EQ(call(R"(["a"])"), R"({"ok":true,"value":"a4"})");
  EXPECT_EQ(call(R"(["a",2])"), R"({"ok":true,"value":"a2"})");
}

TEST_F(ProceduresTest, WrongArgumentsAreRefused) {
  int calls = 0;
  procedures().add(
      "P", [&](const std::string&, std::int16_t, Date, bool, TimeOfDay, double) { ++calls; });
  for (const char* args :
       {"7", R"({"a":1})", "[]", R"(["a",1,"2026-11-30",true,"10:15",1,2])",
        R"([1,1,"2026-11-30",true,"10:15",1])", R"(["a",40000,"2026-11-30",true,"10:15",1])",
        R"(["a",1,"30.11.2026",true,"10:15",1])", R"(["a",1,"2026-11-30",1,"10:15",1])",
        R"(["a",1,"2026-11-30",true,"10.15",1])", R"(["a",1,"2026-11-30",true,"10:15","1"])",
        R"(["a",null,"2026-11-30",true,"10:15",1])", R"(["a",1.5,"2026-11-30",true,"10:15",1])"}) {
    EXPECT_EQ(Json::parse(call(args))["ok"], false) << args;
  }
  EXPECT_EQ(calls, 0);
}

}  // namespace
}  // namespace awizo::protocol::test
