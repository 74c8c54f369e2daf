#include "support/scripted_screen.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <utility>

#include "platform/text.h"

namespace awizo::test {
namespace {

std::string withVisibleLineBreaks(std::string_view text) {
  return replaceAll(replaceAll(text, "\r", "\\r"), "\n", "\\n");
}

/// The run of all tests checks this file against the list of the system's messages.
void noteSeenBox(const MessageBox& box) {
  const char* file = std::getenv("AWIZO_SEEN_BOXES");
  if (file == nullptr || *file == '\0') return;
  std::ofstream seen(file, std::ios::app | std::ios::binary);
  seen << withVisibleLineBreaks(box.title) + "\t" + withVisibleLineBreaks(box.text) + "\n";
}

}  // namespace

ScriptedScreen::~ScriptedScreen() {
  EXPECT_TRUE(answers_.empty()) << answers_.size() << " answers weren't asked for";
  EXPECT_TRUE(boxActs_.empty()) << boxActs_.size() << " boxes weren't shown";
  EXPECT_TRUE(modalActs_.empty()) << modalActs_.size() << " modal forms weren't shown";
}

std::vector<std::string> ScriptedScreen::texts() const {
  std::vector<std::string> all;
  for (const MessageBox& box : boxes_) all.push_back(box.text);
  return all;
}

const MessageBox& ScriptedScreen::lastBox() const {
  static const MessageBox none{"(no box was shown)", "", BoxIcon::none, BoxButtons::ok};
  if (boxes_.empty()) {
    ADD_FAILURE() << "no box was shown";
    return none;
  }
  return boxes_.back();
}

std::vector<MessageBox> ScriptedScreen::takeBoxes() { return std::exchange(boxes_, {}); }

Answer ScriptedScreen::ask(const MessageBox& box) {
  boxes_.push_back(box);
  noteSeenBox(box);
  if (!boxActs_.empty()) {
    const auto act = std::move(boxActs_.front());
    boxActs_.pop_front();
    act(box);
  }
  if (box.buttons == BoxButtons::ok) return Answer::ok;
  if (answers_.empty() && answerUnscripted) return answerUnscripted(box);
  if (answers_.empty()) {
    ADD_FAILURE() << "a question without an answer: " << describe(box);
    return Answer::no;
  }
  const Answer given = answers_.front();
  answers_.pop_front();
  return given;
}

void ScriptedScreen::runModal(Form& form) {
  if (modalActs_.empty() && actUnscripted) return actUnscripted(form);
  modalForms_.push_back(form.name());
  if (modalActs_.empty()) {
    ADD_FAILURE() << "nobody acts on the modal form " << form.name();
    return form.hide();
  }
  const auto act = std::move(modalActs_.front());
  modalActs_.pop_front();
  act(form);
  if (!form.shown()) return;
  ADD_FAILURE() << "the modal form " << form.name() << " stays open";
  form.hide();
}

void ScriptedScreen::letEventsRun() {
  ++lettingEventsRun;
  if (onLetEventsRun) onLetEventsRun();
}

std::string describe(const MessageBox& box) {
  return box.title + "|" + std::string(nameOf(box.icon)) + "|" +
         (box.buttons == BoxButtons::ok ? "OK" : "YesNo") + "|" + withVisibleLineBreaks(box.text);
}

std::vector<std::string> describe(const std::vector<MessageBox>& boxes) {
  std::vector<std::string> described;
  for (const MessageBox& box : boxes) described.push_back(describe(box));
  return described;
}

}  // namespace awizo::test
