#include "hosts/headless/conversation.h"

#include <exception>
#include <new>
#include <optional>
#include <utility>

#include "platform/forms/control.h"
#include "platform/forms/form.h"
#include "platform/run_time_error.h"

namespace awizo::headless {

namespace {

/// A closing line: its outcome, then the line's own id.
Json closingLine(bool ok, const Json& line) {
  Json closing{{"ok", ok}};
  if (line.is_object() && line.contains("id")) closing["id"] = line["id"];
  return closing;
}

Json failure(const Json& line, const std::string& error) {
  Json closing = closingLine(false, line);
  closing["error"] = error;
  return closing;
}

Json failure(const Json& line, const RunTimeError& error) {
  Json closing = failure(line, error.description());
  closing["number"] = error.number();
  return closing;
}

/// Does the work that `text` asks for, read into `line`, and gives the closing line.
template <class Work>
Json closingLineOf(const std::string& text, Work&& work) {
  Json line;
  try {
    line = parseLine(text);
    const Json result = work(std::as_const(line));
    Json closing = closingLine(true, line);
    closing.update(result);
    return closing;
  } catch (const RunTimeError& error) {
    return failure(line, error);
  } catch (const std::bad_alloc&) {
    return failure(line, errors::outOfMemory());
  } catch (const std::exception& error) {
    return failure(line, error.what());
  }
}

Answer answerIn(const Json& line, BoxButtons buttons) {
  const std::string name = textMember(line, "answer");
  if (buttons == BoxButtons::ok) {
    if (name == "OK") return Answer::ok;
  } else {
    if (name == "Yes") return Answer::yes;
    if (name == "No") return Answer::no;
  }
  throw Refused("The message box has no such button.");
}

}  // namespace

void Conversation::run() {
  while (const std::optional<std::string> line = lines_.read()) serve(*line);
}

Answer Conversation::ask(const MessageBox& box) {
  emit({{"event", "message"},
        {"text", box.text},
        {"title", box.title},
        {"icon", nameOf(box.icon)},
        {"buttons", box.buttons == BoxButtons::ok ? "OK" : "YesNo"}});
  std::optional<Answer> answer;
  while (!answer) {
    lines_.write(closingLineOf(nextLine(), [&](const Json& line) {
      if (line.contains("answer")) {
        answer = answerIn(line, box.buttons);
        return Json::object();
      }
      if (!line.contains("get")) throw Refused("A message box is open.");
      return act(line);
    }));
  }
  return *answer;
}

void Conversation::watch(Form& dialog) {
  dialog.observer = [this, &dialog](const Change& change) {
    if (change.aspect != Aspect::visible) return;
    if (dialog.shown()) {
      emit({{"event", "modal"}, {"form", dialog.name()}, {"caption", dialog.caption()}});
    } else {
      emit({{"event", "hidden"}, {"form", dialog.name()}});
    }
  };
}

void Conversation::emit(const Json& event) {
  if (!givenUp_) lines_.write(event);
}

void Conversation::runModal(Form& form) {
  while (form.shown()) serve(nextLine());
}

void Conversation::endProgram() {
  emit({{"event", "end"}});
  throw ProgramEnded{};
}

std::string Conversation::nextLine() {
  std::optional<std::string> line = lines_.read();
  if (!line) {
    givenUp_ = true;
    throw InputEnded{};
  }
  return std::move(*line);
}

void Conversation::serve(const std::string& text) {
  lines_.write(closingLineOf(text, [&](const Json& line) {
    if (line.contains("answer")) throw Refused("No message box is open.");
    return act(line);
  }));
}

}  // namespace awizo::headless
