#include "hosts/headless/conversation.h"

#include <utility>

#include "hosts/headless/question_lines.h"
#include "platform/forms/control.h"
#include "platform/forms/form.h"

namespace awizo::headless {

namespace {

/// The line; null for what is none.
protocol::Json lineIn(const std::string& text) {
  try {
    return protocol::parseLine(text);
  } catch (const protocol::BadLine&) {
    return nullptr;
  }
}

}  // namespace

void Conversation::run() {
  while (const std::optional<std::string> line = waitForLine()) serve(*line);
}

void Conversation::serveUntil(const std::function<bool()>& isOver) {
  while (!isOver()) serve(nextLine());
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
    if (!lineIn(text).contains("answer")) {
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
  emit(describe(box));
  Answer answer{};
  waitOverForms(
      [&](const protocol::Json& line) { answer = protocol::answerIn(line, box.buttons); });
  return answer;
}

Choice Conversation::ask(const Question& question) {
  emit(questionEvent(question));
  Choice choice{};
  waitOverForms([&](const protocol::Json& line) { choice = choiceIn(line, question); });
  return choice;
}

void Conversation::waitOverForms(const std::function<void(const protocol::Json& line)>& take) {
  bool taken = false;
  while (!taken) {
    lines_.write(protocol::closingLineOf(nextLine(), [&](const protocol::Json& line) {
      if (line.contains("answer")) {
        take(line);
        taken = true;
        return protocol::Json::object();
      }
      if (!line.contains("get")) throw Refused("A message box is open.");
      return act(line);
    }));
  }
}

bool Conversation::isToldToStop() {
  while (lineWaits && lineWaits()) {
    std::optional<std::string> text = lines_.read();
    if (!text) return true;
    const protocol::Json line = lineIn(*text);
    if (line.is_object() && line.contains("do") && line["do"] == "stop") {
      lines_.write(protocol::success(line, protocol::Json::object()));
      return true;
    }
    early_.push_back(std::move(*text));
  }
  return false;
}

void Conversation::watch(Form& dialog) {
  dialog.observers.add([this, &dialog](const Change& change) {
    if (change.aspect == Aspect::visible && !dialogsAreUnseen) emit(protocol::formEvent(dialog));
  });
}

void Conversation::emit(const protocol::Json& event) {
  if (!givenUp_ && !silent) lines_.write(event);
}

void Conversation::runModal(Form& form) {
  if (onModal) onModal(form);
  serveUntil([&form] { return !form.shown(); });
  if (onModalEnd) onModalEnd(form);
}

void Conversation::workBegins(std::string_view what) {
  if (onWork) onWork(what);
}

void Conversation::workEnds() {
  if (onWorkEnd) onWorkEnd();
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
