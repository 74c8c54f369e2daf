#include "hosts/headless/question_lines.h"

#include "platform/forms/control.h"

namespace awizo::headless {

namespace {

using protocol::Json;

std::string_view nameOf(Choice choice) {
  switch (choice) {
    case Choice::save:
      return "save";
    case Choice::letGo:
      return "letGo";
    case Choice::goOn:
      return "goOn";
    case Choice::wait:
      return "wait";
    case Choice::leave:
      return "leave";
    case Choice::send:
      return "send";
    case Choice::startAfresh:
      return "startAfresh";
    case Choice::later:
      return "later";
    case Choice::replace:
      return "replace";
    case Choice::printed:
      return "printed";
    case Choice::notPrinted:
      return "notPrinted";
    case Choice::cancel:
      break;
  }
  return "cancel";
}

}  // namespace

Json questionEvent(const Question& question) {
  Json choices = Json::array();
  for (const Choice choice : question.choices) {
    choices.push_back({{"choice", nameOf(choice)}, {"words", wordsOf(choice)}});
  }
  return {{"event", "question"},
          {"text", question.text},
          {"icon", awizo::nameOf(question.icon)},
          {"harmless", nameOf(question.harmless)},
          {"choices", std::move(choices)}};
}

Choice choiceIn(const Json& line, const Question& question) {
  const std::string name = protocol::textMember(line, "answer");
  for (const Choice choice : question.choices) {
    if (nameOf(choice) == name) return choice;
  }
  throw Refused("The question has no such choice.");
}

}  // namespace awizo::headless
