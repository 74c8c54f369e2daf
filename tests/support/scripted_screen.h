#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/forms/form.h"
#include "platform/forms/screen.h"
#include "platform/forms/screen_face.h"

namespace awizo::test {

/// The user in front of the screen, played from a script: answers boxes, acts on modal forms, and
/// remembers all that was seen. Boxes with OK alone are answered OK where the script has nothing
/// for them; a question without an answer fails the test and is answered No. What the script holds
/// at the end and nobody has used fails the test too.
class ScriptedScreen : public ScreenFace {
 public:
  ~ScriptedScreen() override;

  // The script.

  /// The answer to the next question (a box with Yes and No).
  void answer(Answer answer) { answers_.push_back(answer); }
  /// What runs while the next box is open, before it is answered.
  void whileBoxIsOpen(std::function<void(const MessageBox&)> act) {
    boxActs_.push_back(std::move(act));
  }
  /// What the user does on the next modal form. A form that is still shown afterwards fails the
  /// test and is hidden.
  void onModal(std::function<void(Form&)> act) { modalActs_.push_back(std::move(act)); }
  /// The same, for a test that has the form.
  void onModal(std::function<void()> act) {
    modalActs_.push_back([act = std::move(act)](Form&) { act(); });
  }

  // Where the script has nothing: for a user who is made up as the test goes.

  /// Answers every question.
  std::function<Answer(const MessageBox&)> answerUnscripted;
  /// Acts on every modal form.
  std::function<void(Form&)> actUnscripted;

  // What was seen.

  const std::vector<MessageBox>& boxes() const { return boxes_; }
  /// The texts of all boxes so far.
  std::vector<std::string> texts() const;
  /// The last box; fails the test when there was none.
  const MessageBox& lastBox() const;
  /// Hands over the boxes seen so far and forgets them.
  std::vector<MessageBox> takeBoxes();
  /// Names of the modal forms in the order in which they were shown.
  const std::vector<std::string>& modalForms() const { return modalForms_; }
  /// Each change of the cursor.
  const std::vector<Cursor>& cursors() const { return cursors_; }
  /// The words of each work that took long, and how many go on now.
  const std::vector<std::string>& works() const { return works_; }
  int worksGoingOn = 0;
  /// How often waiting events were let run, and what runs then.
  int lettingEventsRun = 0;
  std::function<void()> onLetEventsRun;
  bool programEnded = false;

  // ScreenFace

  Answer ask(const MessageBox& box) override;
  void runModal(Form& form) override;
  void cursorChanged(Cursor cursor) override { cursors_.push_back(cursor); }
  void workBegins(std::string_view what) override {
    works_.emplace_back(what);
    ++worksGoingOn;
  }
  void workEnds() override { --worksGoingOn; }
  void letEventsRun() override;
  void endProgram() override { programEnded = true; }

 private:
  std::deque<Answer> answers_;
  std::deque<std::function<void(const MessageBox&)>> boxActs_;
  std::deque<std::function<void(Form&)>> modalActs_;
  std::vector<MessageBox> boxes_;
  std::vector<std::string> modalForms_;
  std::vector<Cursor> cursors_;
  std::vector<std::string> works_;
};

/// The box as a test writes it down: "title|icon|buttons|text", line breaks as \r and \n.
std::string describe(const MessageBox& box);

/// Boxes as `describe` writes them.
std::vector<std::string> describe(const std::vector<MessageBox>& boxes);

}  // namespace awizo::test
