#include "hosts/headless/conversation.h"

#include <utility>

#include "hosts/headless/question_lines.h"
#include "hosts/protocol/answers.h"
#include "platform/forms/control.h"
#include "platform/forms/form.h"

namespace awizo::headless {

namespace {

bool isAnswer(const std::string& text) {
  try {
    return protocol::parseLine(text).contains("answer");
  } catch (const protocol::BadLine&) {
    return false;
  }
}

}  // namespace

void Conversation::run() {
  while (const std::optional<std::string> line = waitForLine()) serve(*line);
}

Choice Conversation::choose(const Question& question) {
  emit(questionEvent(question));
  Choice choice{};
  waitForAnswer([&](const protocol::Json& line) { choice = choiceIn(line, question); });
  return choice;
}

void Conversation::waitForAnswer(const std::function<void(const protocol::Json& line)>& take) {
  std::deque<std::string> early;
  bool taken = false;
  while (!taken) {
    std::string text = nextLine();
    if (!isAnswer(text)) {
      early.push_back(std::move(text));
      continue;
    }
    lines_.write(protocol::closingLineOf(text, [&](const protocol::Json& line) {
      take(line);
      taken = true;
      return protocol::Json::object();
    }));
  }
  early_ = std::move(early);
}

Answer Conversation::askFirst(const MessageBox& box) {
  emit(protocol::boxEvent(box));
  Answer answer{};
  waitForAnswer(
      [&](const protocol::Json& line) { answer = protocol::answerIn(line, box.buttons); });
  return answer;
}

Answer Conversation::ask(const MessageBox& box) {
  emit(protocol::boxEvent(box));
  std::optional<Answer> answer;
  while (!answer) {
    lines_.write(protocol::closingLineOf(nextLine(), [&](const protocol::Json& line) {
      if (line.contains("answer")) {
        answer = protocol::answerIn(line, box.buttons);
        return protocol::Json::object();
      }
      if (!line.contains("get")) throw Refused("A message box is open.");
      return act(line);
    }));
  }
  return *answer;
}

void Conversation::watch(Form& dialog) {
  dialog.observers.add([this, &dialog](const Change& change) {
    if (change.aspect == Aspect::visible) emit(protocol::formEvent(dialog));
  });
}

void Conversation::emit(const protocol::Json& event) {
  if (!givenUp_ && !silent) lines_.write(event);
}

void Conversation::runModal(Form& form) {
  while (form.shown()) serve(nextLine());
}

void Conversation::endProgram() {
  emit(protocol::endEvent());
  throw ProgramEnded{};
}

std::optional<std::string> Conversation::waitForLine() {
  beforeWaiting();
  if (early_.empty()) return lines_.read();
  std::string line = std::move(early_.front());
  early_.pop_front();
  return line;
}

std::string Conversation::nextLine() {
  std::optional<std::string> line = waitForLine();
  if (!line) {
    givenUp_ = true;
    throw InputEnded{};
  }
  return std::move(*line);
}

void Conversation::serve(const std::string& text) {
  lines_.write(protocol::closingLineOf(text, [&](const protocol::Json& line) {
    if (line.contains("answer")) throw Refused("No message box is open.");
    return act(line);
  }));
}

}  // namespace awizo::headless
