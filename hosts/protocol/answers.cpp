#include "hosts/protocol/answers.h"

#include "platform/forms/control.h"

namespace awizo::protocol {

namespace {

Json closingLine(bool ok, const Json& line) {
  Json closing{{"ok", ok}};
  if (line.is_object() && line.contains("id")) closing["id"] = line["id"];
  return closing;
}

}  // namespace

Json success(const Json& line, const Json& result) {
  Json closing = closingLine(true, line);
  closing.update(result);
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

Json boxEvent(const MessageBox& box) {
  return {{"event", "message"},
          {"text", box.text},
          {"title", box.title},
          {"icon", nameOf(box.icon)},
          {"buttons", box.buttons == BoxButtons::ok ? "OK" : "YesNo"}};
}

Json formEvent(const Form& form) {
  if (!form.shown()) return {{"event", "hidden"}, {"form", form.name()}};
  return {{"event", "modal"}, {"form", form.name()}, {"caption", form.caption()}};
}

Json propertyEvent(std::string_view property) {
  return {{"event", "changed"}, {"property", property}};
}

Json endEvent() {
  Json event;
  event["event"] = "end";
  return event;
}

}  // namespace awizo::protocol
