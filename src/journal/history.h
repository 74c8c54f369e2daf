#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "journal/snapshot.h"
#include "journal/tape.h"
#include "platform/at_exit.h"

namespace awizo::journal {

/// What an act on the document was, for the words that name it.
struct StepName {
  /// What the user acted on; null for a form's frame.
  const Control* control = nullptr;
  // The current rows: before the act, and after it.
  int line = 0, package = 0;
  int newLine = 0, newPackage = 0;
  std::string text = {};  ///< of acts that are one step by somebody's word; else empty
};

/// The user's acts on the document, each of which can be taken back and done again, the last first.
/// A step begins with the act on the main form that leads to it (the opening of a dialog, of an
/// edit in the table, the first change of a field) and ends when the document has changed and the
/// user's turn is on the main form again; what changes no document is no step. What was done last
/// is taken back to the state before its step, as if neither it nor anything since had been done;
/// nothing is sent, read or written for it. A document that was sent or read ends all steps before
/// it, and so does what a host calls.
class History : public DeedListener {
 public:
  static constexpr std::size_t mostSteps = 500;

  /// Listens to the tape. Both outlive it.
  History(Tape& tape, AwizoWysylki& control);
  ~History() override;
  History(const History&) = delete;
  History& operator=(const History&) = delete;

  /// The step that would be taken back now; null where there is none or the user is at something
  /// else: in a dialog, in an edit in the table.
  const StepName* toTakeBack() const;
  /// The step that would be done again now; null where there is none.
  const StepName* toDoAgain() const;
  // Nothing happens where there is no such step.
  void takeBack();
  void doAgain();

  /// While the returned object lives, all acts are one step of this name, which follows the word
  /// "Отменить: ".
  [[nodiscard]] auto asOneStep(const std::string& name) {
    beginStep(name);
    return AtExit([this] { endStep(); });
  }

  /// Called when an act is over, whatever it was. May be empty.
  std::function<void()> onChange;

  // DeedListener
  void userActs(const Control* control) override;
  void hostActs() override;
  void deedEnds() override;
  void stepBegins(const std::string& name) override;
  void stepEnds() override;
  void returnedPastWriting() override;
  void replayEnds() override;

 private:
  struct Moment {
    Snapshot snapshot;
    TapePlace place;
    int writings = 0;  ///< files written so far
  };
  struct Beginning {
    Moment moment;
    StepName name;
  };
  struct Step {
    Beginning from;
    Moment to;
    /// An edit in the table that was open when the step began.
    std::optional<Beginning> edit;
  };

  void beginStep(const std::string& name);
  void endStep();
  Moment now();
  bool isChangedSince(const Moment& then) { return !holdsDocumentOf(control_, then.snapshot); }
  bool editIsOpen() const;
  bool isIdle() const;
  void nameEnd(StepName& name) const;
  /// What an act that is over has come to.
  void settle();
  void settleEdit();
  void push(Step step);
  void clear();
  void returnTo(const Moment& moment);

  Tape& tape_;
  AwizoWysylki& control_;
  int observation_ = 0;
  std::deque<Step> done_;
  std::vector<Step> undone_;
  Snapshot last_;
  int writings_ = 0;
  int deeds_ = 0;                   ///< that run now, one in another
  bool isEnd_ = false;              ///< the act that runs can't be taken back
  Beginning act_;                   ///< the outermost that runs, or ran last
  std::optional<Beginning> edit_;   ///< the edit in the table that is open
  std::optional<Beginning> group_;  ///< what is one step by somebody's word
  /// The header's field that was changed last, as long as the user acts on nothing else.
  const Control* field_ = nullptr;
};

}  // namespace awizo::journal
