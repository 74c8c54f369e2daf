#include "support/programs/conversation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <utility>

namespace awizo::test {

namespace {

std::string visible(const std::string& text) {
  std::string result;
  for (const char character : text) {
    if (character == '\r') {
      result += "\\r";
    } else if (character == '\n') {
      result += "\\n";
    } else {
      result += character;
    }
  }
  return result;
}

/// The run of all tests checks this file against the list of the system's messages.
void noteSeenBox(const Json& box) {
  const char* file = std::getenv("AWIZO_SEEN_BOXES");
  if (file == nullptr || *file == '\0') return;
  std::ofstream seen(file, std::ios::app | std::ios::binary);
  seen << visible(box["title"]) + "\t" + visible(box["text"]) + "\n";
}

std::string headlessProgram() {
  const char* other = std::getenv("AWIZO_HEADLESS");
  return other == nullptr || *other == '\0' ? AWIZO_HEADLESS : other;
}

}  // namespace

std::vector<std::string> headlessCommand(const std::vector<std::string>& options,
                                         const std::vector<std::string>& launcher) {
  std::vector<std::string> command = launcher;
  command.push_back(headlessProgram());
  command.insert(command.end(), options.begin(), options.end());
  return command;
}

Conversation::Conversation(const std::vector<std::string>& options,
                           const std::vector<std::string>& environment,
                           const std::vector<std::string>& launcher)
    : program_(headlessCommand(options, launcher), environment) {}

void Conversation::act(const Json& line) {
  Json numbered = line;
  numbered["id"] = ++lastId_;
  expectedGood_.push_back(lastId_);
  if (line.contains("answer")) answerId_ = lastId_;
  exchange(numbered.dump());
}

Json Conversation::say(const Json& line) {
  Json numbered = line;
  const int id = ++lastId_;
  numbered["id"] = id;
  exchange(numbered.dump());
  return closings_[id];
}

Json Conversation::sayText(std::string_view line) {
  unnumbered_ = nullptr;
  exchange(line);
  return unnumbered_;
}

std::string Conversation::refused(const Json& line) {
  const Json closing = say(line);
  EXPECT_EQ(closing.value("ok", true), false) << line << " was not refused: " << closing;
  return closing.value("error", "");
}

void Conversation::chooseText(std::string_view on, std::string_view text) {
  const Json rows = get(on)["rows"];
  const auto found = std::find(rows.begin(), rows.end(), text);
  if (found == rows.end()) {
    ADD_FAILURE() << on << " has no row " << text;
    return;
  }
  choose(on, static_cast<int>(found - rows.begin()));
}

Json Conversation::get(std::string_view name) {
  const Json closing = say({{"get", name}});
  EXPECT_EQ(closing.value("ok", false), true) << name << ": " << closing;
  return closing.value("value", Json());
}

Json Conversation::call(std::string_view procedure, const Json& arguments) {
  const Json closing = say({{"call", procedure}, {"args", arguments}});
  EXPECT_EQ(closing.value("ok", false), true) << procedure << ": " << closing;
  return closing.value("value", Json());
}

std::string Conversation::openBox() {
  if (!box_) {
    ADD_FAILURE() << "no message box is open";
    return "";
  }
  return box_->text;
}

std::vector<std::string> Conversation::answerAll(std::string_view question) {
  std::vector<std::string> seen;
  while (box_) {
    seen.push_back(box_->text);
    answer(box_->isQuestion ? question : "OK");
    if (!closings_[answerId_].value("ok", false)) break;
  }
  return seen;
}

std::vector<Json> Conversation::takeEvents() { return std::exchange(events_, {}); }

Json Conversation::takeLast(std::string_view event) {
  Json last;
  for (Json& one : takeEvents()) {
    if (one["event"] == event) last = std::move(one);
  }
  return last;
}

int Conversation::finish() {
  EXPECT_TRUE(expectedGood_.empty()) << "line " << expectedGood_.front() << " has no closing line";
  program_.closeInput();
  return program_.waitForEnd().value_or(-1);
}

void Conversation::exchange(std::string_view line) {
  // A "get" is allowed at any time and answered in its turn: what comes before its closing line is
  // all that the line before it caused.
  const int mark = ++lastId_;
  const Json probe{{"get", "focus"}, {"id", mark}};
  ASSERT_TRUE(program_.write(std::string(line) + "\n" + probe.dump() + "\n"))
      << "the program doesn't read any more";
  while (!closings_.contains(mark)) {
    const std::optional<std::string> output = program_.readLine();
    ASSERT_TRUE(output) << "the program doesn't answer: " << line;
    take(Json::parse(*output));
  }
}

void Conversation::take(const Json& output) {
  if (!output.contains("event")) {
    const auto id = output.find("id");
    if (id == output.end() || !id->is_number_integer()) {
      unnumbered_ = output;
      return;
    }
    const int number = id->get<int>();
    closings_[number] = output;
    if (number == answerId_) box_.reset();
    if (std::erase(expectedGood_, number) != 0) {
      EXPECT_EQ(output["ok"], true) << output;
    }
  } else if (output["event"] == "message") {
    noteSeenBox(output);
    box_ = Box{output["title"].get<std::string>() + "|" + output["icon"].get<std::string>() + "|" +
                   output["text"].get<std::string>(),
               output["buttons"] == "YesNo"};
  } else {
    events_.push_back(output);
  }
}

}  // namespace awizo::test
