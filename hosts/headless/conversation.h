#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "desk/question.h"
#include "hosts/headless/lines.h"
#include "hosts/protocol/answers.h"
#include "hosts/protocol/values/json.h"
#include "platform/forms/screen_face.h"

namespace awizo::headless {

/// Input ended while a box or a modal form was open: all that runs is given up. No std::exception,
/// so that nothing on the way takes it for an error to report.
struct InputEnded {};

/// The system ended the whole program.
struct ProgramEnded {};

/// The talk with the user's program: takes line by line, passes each to `act` and answers it. It is
/// also the screen: a box or a modal form reads further lines until it is answered or has hidden.
class Conversation : public ScreenFace {
 public:
  /// The lines outlive it.
  explicit Conversation(Lines& lines) : lines_(lines) {}

  /// Does what a line asks that is no answer to a box. What it returns is part of the closing line
  /// ("value", "args"). Throws protocol::BadLine, Refused or RunTimeError; nothing has changed then
  /// but what a procedure did before its error. While a box is open only lines that get something
  /// come here.
  std::function<protocol::Json(const protocol::Json& line)> act;
  /// Called whenever all is told and the next line is waited for.
  std::function<void()> beforeWaiting = [] {};
  /// How a box is told of.
  std::function<protocol::Json(const MessageBox& box)> describe = protocol::boxEvent;
  // Called when work begins during which the user can do nothing, and when it ends. Such works
  // nest.
  std::function<void(std::string_view what)> onWork;
  std::function<void()> onWorkEnd;
  // Called when a form has come up for the user, and when it has gone.
  std::function<void(Form& form)> onModal;
  std::function<void(Form& form)> onModalEnd;
  /// Whether a line waits to be read. None where that can't be seen.
  std::function<bool()> lineWaits;
  /// Nothing is told for now.
  bool silent = false;
  /// Dialogs come and go without the user.
  bool dialogsAreUnseen = false;

  /// Reports from now on when the form is shown modally and when it hides.
  void watch(Form& dialog);
  /// Serves lines until the end of input.
  void run();
  /// Serves lines until that is so. Throws InputEnded where the input ends first.
  void serveUntil(const std::function<bool()>& isOver);
  /// Writes an event; nothing is written any more once the input has ended under an open box or
  /// form.
  void emit(const protocol::Json& event);

  /// Whether a line that waits says so: {"do":"stop"}. What else waits is served later.
  bool isToldToStop();

  // Asked before there is a control. Lines that come before the answer are served after it.
  Choice choose(const Question& question);
  Answer askFirst(const MessageBox& box);

  /// Over what is open, as a box is.
  Choice ask(const Question& question);

  Answer ask(const MessageBox& box) override;
  /// Serves lines until the form has hidden.
  void runModal(Form& form) override;
  void cursorChanged(Cursor) override {}
  void workBegins(std::string_view what) override;
  void workEnds() override;
  void letEventsRun() override {}
  [[noreturn]] void endProgram() override;

 private:
  std::optional<std::string> waitForLine();
  void waitForAnswer(const std::function<void(const protocol::Json& line)>& take);
  void waitOverForms(const std::function<void(const protocol::Json& line)>& take);
  std::string nextLine();
  void serve(const std::string& text);

  Lines& lines_;
  std::deque<std::string> early_;  ///< lines that came before a question was answered
  bool givenUp_ = false;
};

}  // namespace awizo::headless
