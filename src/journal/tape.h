#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "journal/record.h"
#include "journal/values.h"
#include "platform/forms/act.h"
#include "platform/growing_file.h"
#include "platform/record_folder.h"
#include "platform/run_time_error.h"

namespace awizo::journal {

/// What the surroundings are asked. The numbers stand in files.
enum class Source : std::uint8_t {
  readFile = 1,
  replaceFile,
  openLog,
  folderExists,
  makeFolder,
  folders,
  files,
  drives,
  clock,
  pageUrl,
  pageCookie,
  readProperty,
  writeProperty,
  readSetting,
  writeSetting,
  makeRequest,
  openRequest,
  setHeader,
  send,
  reply,
};

/// Whether a replay takes what was recorded, or what the host of today says instead.
enum class Asked : std::uint8_t { asRecorded, today };

/// A replay that went another way than what was recorded. No std::exception, so that nothing on the
/// way takes it for an error to report.
struct ReplayDiffers {
  std::size_t deed;  ///< the act, counted from 1, during or after which it was found; 0: the start
  std::string what;
};

/// Where a state stands: after how many deeds that were written, and how many that lead to it.
struct TapePlace {
  std::size_t written = 0;
  std::size_t deeds = 0;
};

/// Learns of all that is done to the control, in a replay too.
class DeedListener {
 public:
  virtual ~DeedListener() = default;
  /// The user acts on the control; null for a form's frame.
  virtual void userActs(const Control* control) = 0;
  virtual void hostActs() = 0;
  /// What began last is over, done or refused.
  virtual void deedEnds() = 0;
  virtual void stepBegins(const std::string& name) = 0;
  virtual void stepEnds() = 0;
  /// The work was taken back to where it was before a file was written.
  virtual void returnedPastWriting() = 0;
  virtual void replayEnds() = 0;
};

/// Stands between a control and all that reaches it. It writes down what comes in; and while it has
/// records to replay, it hands out what they hold instead of asking the surroundings. After the
/// last record it goes on as if it had only written, within an act too where the record ends there.
class Tape : public ActObserver {
 public:
  /// Nothing is written where `file` is null. Long texts go to `texts`, where there is one.
  Tape(std::vector<Record> replayed, GrowingFile* file, TextsBeside* texts = nullptr);

  /// Null for nobody.
  DeedListener* listener = nullptr;
  /// Digest of the whole state.
  std::function<std::uint64_t()> digest;
  /// What a person wants to know of the work so far, asked whenever the control waits; none:
  /// nothing.
  std::function<std::vector<std::string>()> summary;
  /// Whether the request that goes out now asks for the order; none: never.
  std::function<bool()> asksForOrder;
  /// Told once when the file can't be written any more; the work goes on without it.
  std::function<void(const RunTimeError& error)> onTrouble;
  /// Told when the last record has been replayed and the user's turn comes.
  std::function<void()> onLive;
  /// Whether a form is the control's; what happens on another is nothing to record.
  std::function<bool(const Form& form)> isRecorded;
  /// Sets a table's view height in a replay.
  std::function<void(const std::string& form, const std::string& table, int height)> setViewHeight;

  bool replaying() const { return replaying_; }
  /// Whether what is asked now is part of an act. Between acts only hosts ask, for themselves.
  bool running() const { return running_; }
  std::size_t deeds() const { return place_.deeds; }
  /// Where the state stands; while a deed is about to begin, where it stood before.
  TapePlace place() const { return place_; }
  /// Whether all that came in so far is in the file, or on its way there.
  bool recording() const { return file_ != nullptr; }

  /// What `call` returns, or returned when this was recorded; its run-time error included.
  template <class Call>
  auto outcome(Source source, Call&& call, Asked asked = Asked::asRecorded);
  /// The same for a question that anybody may ask any number of times.
  template <class Call>
  auto fact(Source source, std::string_view about, Call&& call);
  /// Says that a request goes out now: without an outcome, nobody knows whether it arrived.
  void request();
  /// What was recorded must be on the disk before the work goes on.
  void flush();

  /// The act that a replay has to do next, or that the form that waits was closed; none when there
  /// is no more, and then it is the user's turn.
  const Record* nextDeed();
  /// The answer to a box.
  template <class Ask>
  int answer(Ask&& ask);
  /// Waits for the user, who acts meanwhile, in a modal form.
  template <class Wait>
  void wait(const Form& form, Wait&& wait);
  /// A call of the surroundings within which a host may lay out its views.
  template <class Call>
  void passing(Call&& call);

  /// The state is again what it was at that place, between two acts.
  void returnTo(TapePlace place, bool pastWriting);
  // All between is taken back as one.
  void beginStep(const std::string& name);
  void endStep();

  /// The control is made now, which is nobody's act. ends() comes when it is done.
  void beginsCreation();
  /// The host does something. ends() or refused() comes when it is done.
  void beginsHostAct(const std::vector<std::string>& texts);

  // ActObserver
  void begins(const Act& act) override;
  void refused() override;
  void ends(bool whole) override;
  void viewHeightSet(const Control& table, int height) override;

  [[noreturn]] void differs(const std::string& what) const;

 private:
  bool isTaped() const { return running_ && (replaying_ || file_ != nullptr); }

  /// Whether the state's digest is due: it is far dearer than an act, but of a short session too
  /// most must be proved by one.
  bool digestIsDue() const;

  /// valueOf; a record that has none is a difference.
  template <class Value>
  Value recordedValue(const Record& record, std::size_t skipped) const;
  void write(const Record& record);
  void commit();
  void countDeed();
  template <class Tell>
  void tellBeginning(Tell&& tell);
  void end(bool whole);
  void ready();
  void writeDigest();
  void goLive();
  /// Takes what stands before the next outcome or deed.
  void absorb();
  /// Whether what is asked now is replayed. It isn't once a record is over that ends within an act.
  bool replaysOn();
  Record takeOutcome(Source source);
  void absorbReturn(const Record& record);
  void checkDigest(const Record& record) const;

  std::vector<Record> replayed_;
  std::size_t next_ = 0;
  bool replaying_;
  bool endsWithinAct_;  ///< the records end where the control didn't wait for the user
  GrowingFile* file_;
  TextsBeside* texts_;
  std::string pending_;
  bool running_ = false;
  bool hiddenByAct_ = false;  ///< the form that waits was hidden by the act that has just ended
  bool aside_ = false;        ///< an act on another form runs
  /// The modal forms that wait for the user, null for a box.
  std::vector<const Form*> waiting_;
  /// Passing calls since the last deed: where within an act a host laid out its views.
  std::int64_t passed_ = 0;
  TapePlace place_;
  TapePlace placeBefore_;    ///< the last deed
  std::size_t written_ = 0;  ///< deeds, those too that were taken back
  std::size_t actsSinceDigest_ = 0;
  std::vector<std::string> summaryWritten_;
  std::map<std::pair<Source, std::string>, Record> facts_;
  /// The last of each table, by form and name.
  std::map<std::pair<std::string, std::string>, int> viewHeights_;
};

template <class Call>
auto Tape::outcome(Source source, Call&& call, Asked asked) {
  using Value = decltype(call());
  if (!isTaped()) return call();
  if (replaysOn()) {
    const Record record = takeOutcome(source);
    return asked == Asked::asRecorded ? recordedValue<Value>(record, 0) : call();
  }
  return noted<Value>(call, [&](Record& record) {
    record.kind = RecordKind::outcome;
    record.numbers.insert(record.numbers.begin(), static_cast<std::int64_t>(source));
    write(record);
  });
}

template <class Call>
auto Tape::fact(Source source, std::string_view about, Call&& call) {
  using Value = decltype(call());
  if (!isTaped()) return call();
  const std::pair key{source, std::string(about)};
  if (replaysOn()) {
    const auto found = facts_.find(key);
    if (found == facts_.end()) differs("a question that nobody asked before");
    return recordedValue<Value>(found->second, 1);
  }
  return noted<Value>(call, [&](Record& record) {
    record.kind = RecordKind::fact;
    record.numbers.insert(record.numbers.begin(), static_cast<std::int64_t>(source));
    record.texts.insert(record.texts.begin(), key.second);
    if (const auto found = facts_.find(key); found != facts_.end() && found->second == record)
      return;
    write(record);
    facts_[key] = record;
  });
}

template <class Value>
Value Tape::recordedValue(const Record& record, std::size_t skipped) const {
  if (!holdsValue<Value>(record, skipped)) differs("a value of another kind");
  return valueOf<Value>(record, skipped);
}

template <class Ask>
int Tape::answer(Ask&& ask) {
  if (!running_) return ask();
  if (replaying_) {
    if (const Record* deed = nextDeed()) {
      if (deed->kind != RecordKind::answer) differs("a box that wasn't answered before");
      return static_cast<int>(deed->numbers.at(0));
    }
  }
  const bool running = std::exchange(running_, false);
  waiting_.push_back(nullptr);
  ready();
  const int given = ask();
  waiting_.pop_back();
  running_ = running;
  countDeed();
  write({RecordKind::answer, {given}, {}});
  return given;
}

template <class Wait>
void Tape::wait(const Form& form, Wait&& wait) {
  const bool running = std::exchange(running_, false);
  waiting_.push_back(&form);
  if (!replaying_) ready();
  hiddenByAct_ = false;
  wait();
  if (!replaying_ && !std::exchange(hiddenByAct_, false)) write({RecordKind::closed, {}, {}});
  waiting_.pop_back();
  running_ = running;
}

template <class Call>
void Tape::passing(Call&& call) {
  ++passed_;
  if (replaying_) return absorb();
  call();
}

}  // namespace awizo::journal
