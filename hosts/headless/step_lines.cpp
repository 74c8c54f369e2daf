#include "hosts/headless/step_lines.h"

#include <utility>

#include "desk/layout_words.h"
#include "desk/step_words.h"
#include "platform/forms/control.h"
#include "platform/text.h"

namespace awizo::headless {

namespace {

using protocol::Json;
using Steps = journal::History;

/// One of the two ways through the steps.
struct Way {
  const journal::StepName* (Steps::*next)() const;
  void (Steps::*go)();
  std::string_view done;
};

constexpr Way back{&Steps::toTakeBack, &Steps::takeBack, words::takenBack};
constexpr Way again{&Steps::toDoAgain, &Steps::doAgain, words::doneAgain};

}  // namespace

Json stepCommands(AwizoWysylki& control, const Steps& history) {
  Json commands{{"takeBack", nullptr}, {"doAgain", nullptr}};
  if (history.toTakeBack()) commands["takeBack"] = takeBackWords(control.form, history);
  if (history.toDoAgain()) commands["doAgain"] = doAgainWords(control.form, history);
  return commands;
}

void addStepLines(protocol::Dispatcher& dispatcher, AwizoWysylki& control, Steps& history,
                  std::function<void(const std::string&)> tell) {
  dispatcher.records["steps"] = [&] { return stepCommands(control, history); };
  const auto going = [&control, &history, tell = std::move(tell)](const Way& way) {
    return [&control, &history, tell, way](const Json&) {
      const journal::StepName* step = (history.*way.next)();
      if (step == nullptr) throw Refused("There is no such step now.");
      const std::string words = joined({way.done, stepWords(control.form, *step)});
      (history.*way.go)();
      tell(words);
    };
  };
  dispatcher.clientActions["takeBack"] = going(back);
  dispatcher.clientActions["doAgain"] = going(again);
}

}  // namespace awizo::headless
