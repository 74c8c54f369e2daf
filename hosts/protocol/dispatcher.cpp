#include "hosts/protocol/dispatcher.h"

#include "hosts/protocol/control_state.h"
#include "platform/forms/control.h"

namespace awizo::protocol {

Json Dispatcher::act(const Json& line) {
  const bool does = line.contains("do");
  const bool gets = line.contains("get");
  const bool calls = line.contains("call");
  if (does + gets + calls != 1) {
    throw BadLine(R"(The line must have one of "do", "get", "call" and "answer".)");
  }
  if (gets) return {{"value", get(line)}};
  if (ended) throw Refused("The control has been taken down.");
  if (calls) return doNoted(line, [&] { return call(line); });
  perform(line);
  return Json::object();
}

Json Dispatcher::doNoted(const Json& line, const std::function<Json()>& deed) {
  return noteHostDeed ? noteHostDeed(line, deed) : deed();
}

void Dispatcher::perform(const Json& line) {
  const std::string action = textMember(line, "do");
  const auto clientAction = clientActions.find(action);
  if (clientAction != clientActions.end()) return clientAction->second(line);
  const auto hostAction = hostActions.find(action);
  if (hostAction != hostActions.end()) {
    doNoted(line, [&] {
      hostAction->second(line);
      return Json();
    });
    return;
  }
  if (!UserActions::knows(action)) throw BadLine("There is no action \"" + action + "\".");
  const auto act = [&] { actions_.perform(action, line); };
  if (aroundUserAct) return aroundUserAct(line, act);
  act();
}

Json Dispatcher::get(const Json& line) const {
  const std::string name = textMember(line, "get");
  if (name == "focus") {
    const Form* top = screen_.top();
    return forms_.nameOf(top == nullptr ? nullptr : top->focus());
  }
  const auto record = records.find(name);
  if (record != records.end()) return record->second();
  if (const Form* form = forms_.findForm(name)) return formState(*form);
  return controlState(forms_.control(name));
}

Json Dispatcher::call(const Json& line) const {
  const auto arguments = line.find("args");
  return procedures.call(textMember(line, "call"),
                         arguments == line.end() ? Json::array() : *arguments);
}

Json Dispatcher::formState(const Form& form) const {
  Json names = Json::array();
  for (const Control* control : form.controls()) names.push_back(forms_.nameOf(control));
  Json state{{"shown", form.shown()},
             {"caption", form.caption()},
             {"focus", forms_.nameOf(form.focus())},
             {"controls", std::move(names)}};
  state.update(forms_.membersOf(form));
  return state;
}

}  // namespace awizo::protocol
