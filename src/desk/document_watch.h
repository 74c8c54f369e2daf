#pragma once

#include <functional>
#include <optional>
#include <string>

#include "desk/question.h"
#include "platform/clock.h"
#include "session/awizo_wysylki.h"

namespace awizo {

/// A way out of a document, by which it would be lost.
enum class WayOut { open, close, startAgain };

/// Watches what becomes of a control's document. It says what state the document is in, and asks
/// before it would be lost. A host asks it before it hands a user's act to the control; acts of
/// scripts go to the control unasked.
class DocumentWatch {
 public:
  /// Both outlive it.
  DocumentWatch(AwizoWysylki& control, const Clock& clock);
  ~DocumentWatch();
  DocumentWatch(const DocumentWatch&) = delete;
  DocumentWatch& operator=(const DocumentWatch&) = delete;

  /// How the host shows a question; without it the answer is the harmless one.
  std::function<Choice(const Question&)> ask;
  /// How the host presses the button that saves; it returns when the saving is over.
  std::function<void()> save = [this] { control_.form.btnZapisz.userPress(); };
  /// Called when what it says may have changed because of something that was done.
  std::function<void()> onDeed;

  /// Whether the document may go. What is neither saved nor sent is asked about; where the user
  /// wants it saved, only if it has been saved by then.
  bool mayTake(WayOut way);
  /// Whether it would be lost now, so that the user would be asked.
  bool wouldBeLost() const { return questionBefore(WayOut::close).has_value(); }
  /// Whether the user may press the button now: the one that opens a file is a way out, and the one
  /// that sends is asked about where the document may have arrived already.
  bool mayPress(const Button& button);
  /// The question to ask before the window closes while an order is fetched or a document is sent;
  /// none while neither is.
  std::optional<Question> questionWhileWorking() const;

  /// "ТН-6 — ЗК-2026/1147 *": number of the document, number of the order, and a star where
  /// something is neither saved nor sent; the program's name where there is none of these.
  std::string title() const;
  /// What was done last and when: "Сохранено в 23:14: c:\ТН-6.xml"; empty at the start.
  std::string status() const;
  /// Where documents are sent to; empty off line.
  std::string address() const;
  /// Says something that isn't the document's, until the next thing is done.
  void tell(std::string words);
  /// Why the start has ended without an editor; empty where it hasn't.
  const std::string& refusal() const { return refusal_; }

 private:
  void note(const Deed& deed);
  bool canSave() const;
  std::optional<Question> questionBefore(WayOut way) const;
  /// Whether the last saving has left out what is packed where.
  bool packingIsUnsaved() const;

  AwizoWysylki& control_;
  const Clock& clock_;
  int observation_ = 0;
  std::string status_;
  std::string refusal_;
  std::string unanswered_;  ///< when it was, "23:14"; empty where no answer is missing
  bool savedOnly_ = false;  ///< saved, not sent since
  int savings_ = 0;
};

}  // namespace awizo
