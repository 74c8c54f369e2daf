#include "journal/tape.h"

#include <algorithm>

#include "journal/record_file.h"
#include "journal/texts_beside.h"
#include "platform/forms/control.h"
#include "platform/forms/form.h"
#include "platform/run_time_error.h"

namespace awizo::journal {

namespace {

constexpr std::size_t mostKeptPending = 1 << 16;
constexpr std::size_t mostActsPerDigest = 64;

/// Whether the control waited for the user after the last of these.
bool endWaiting(const std::vector<Record>& records) {
  return records.empty() || records.back().kind == RecordKind::ready ||
         records.back().kind == RecordKind::digest;
}

}  // namespace

Tape::Tape(std::vector<Record> replayed, GrowingFile* file, TextsBeside* texts)
    : replayed_(std::move(replayed)),
      replaying_(!replayed_.empty()),
      endsWithinAct_(!endWaiting(replayed_)),
      file_(file),
      texts_(texts) {}

void Tape::write(const Record& record) {
  if (file_ == nullptr) return;
  if (texts_ != nullptr && record.kind == RecordKind::outcome) {
    if (const auto named = namedBeside(record, *texts_)) return frame(*named, pending_);
  }
  frame(record, pending_);
}

void Tape::commit() {
  if (file_ == nullptr || pending_.empty()) return;
  try {
    file_->append(pending_);
  } catch (const RunTimeError& error) {
    file_ = nullptr;
    if (onTrouble) onTrouble(error);
  }
  pending_.clear();
  // What a large reply took is given back.
  if (pending_.capacity() > mostKeptPending) pending_.shrink_to_fit();
}

void Tape::flush() {
  if (replaying_ || !running_) return;
  commit();
  if (file_ == nullptr) return;
  try {
    file_->flush();
  } catch (const RunTimeError& error) {
    file_ = nullptr;
    if (onTrouble) onTrouble(error);
  }
}

void Tape::ready() {
  if (summary) {
    std::vector<std::string> texts = summary();
    if (texts != summaryWritten_) {
      write({RecordKind::summary, {}, texts});
      summaryWritten_ = std::move(texts);
    }
  }
  write({RecordKind::ready, {static_cast<std::int64_t>(waiting_.size())}, {}});
  commit();
}

void Tape::writeDigest() {
  actsSinceDigest_ = 0;
  if (file_ == nullptr || !digest) return;
  write({RecordKind::digest, {static_cast<std::int64_t>(digest())}, {}});
}

void Tape::request() {
  if (!running_ || replaying_) return;
  write({RecordKind::request, {asksForOrder && asksForOrder() ? 1 : 0}, {}});
  commit();
}

void Tape::countDeed() {
  placeBefore_ = place_;
  place_ = {++written_, place_.deeds + 1};
}

/// A replay has counted the deed when it took it from the tape.
template <class Tell>
void Tape::tellBeginning(Tell&& tell) {
  if (listener == nullptr) return;
  const TapePlace place = place_;
  if (replaying_) place_ = placeBefore_;
  tell();
  place_ = place;
}

void Tape::returnTo(TapePlace place, bool pastWriting) {
  place_ = place;
  // What was asked and seen since is of no account any more.
  facts_.clear();
  summaryWritten_.clear();
  write(
      {RecordKind::returned, {static_cast<std::int64_t>(place.written), pastWriting ? 1 : 0}, {}});
  for (const auto& [table, height] : viewHeights_) {
    write({RecordKind::viewHeight, {height, 0}, {table.first, table.second}});
  }
  writeDigest();
  ready();
}

void Tape::beginStep(const std::string& name) {
  if (!replaying_) write({RecordKind::stepBegins, {}, {name}});
}

void Tape::endStep() {
  if (replaying_) return;
  write({RecordKind::stepEnds, {}, {}});
  ready();
}

void Tape::beginsCreation() {
  running_ = true;
  tellBeginning([this] { listener->hostActs(); });
}

void Tape::begins(const Act& act) {
  aside_ = isRecorded && !isRecorded(*act.form);
  if (aside_) return;
  running_ = true;
  tellBeginning([&] { listener->userActs(act.control); });
  if (replaying_) return;
  countDeed();
  passed_ = 0;
  Record record{RecordKind::act, {static_cast<std::int64_t>(act.kind)}, {act.form->name()}};
  record.numbers.insert(record.numbers.end(), act.numbers.begin(), act.numbers.end());
  record.texts.push_back(act.control == nullptr ? std::string() : act.control->name());
  record.texts.emplace_back(act.text);
  write(record);
}

void Tape::beginsHostAct(const std::vector<std::string>& texts) {
  running_ = true;
  tellBeginning([this] { listener->hostActs(); });
  if (replaying_) return;
  countDeed();
  passed_ = 0;
  write({RecordKind::hostAct, {}, texts});
}

void Tape::refused() {
  if (std::exchange(aside_, false)) return;
  running_ = false;
  if (replaying_) differs("an act that is refused now");
  place_ = placeBefore_;
  --written_;
  write({RecordKind::undone, {}, {}});
  if (listener != nullptr) listener->deedEnds();
}

void Tape::ends(bool whole) {
  if (std::exchange(aside_, false)) return;
  end(whole);
  if (listener != nullptr) listener->deedEnds();
}

void Tape::end(bool whole) {
  running_ = false;
  if (replaying_ || !whole) return;
  // The act that has hidden a dialog leaves the one that opened it to be finished.
  if (!waiting_.empty() && waiting_.back() != nullptr && !waiting_.back()->shown()) {
    hiddenByAct_ = true;
    return commit();
  }
  if (waiting_.empty()) {
    ++actsSinceDigest_;
    if (digestIsDue()) writeDigest();
  }
  ready();
}

bool Tape::digestIsDue() const {
  // A control that was only made shows the time of its own making in fields that nobody has seen.
  if (place_.deeds == 0) return false;
  return actsSinceDigest_ >= std::clamp(place_.deeds / 4, std::size_t{1}, mostActsPerDigest);
}

void Tape::viewHeightSet(const Control& table, int height) {
  if (replaying_) return;
  const std::string& form = table.form().name();
  viewHeights_[{form, table.name()}] = height;
  write({RecordKind::viewHeight, {height, passed_}, {form, table.name()}});
}

void Tape::differs(const std::string& what) const { throw ReplayDiffers{place_.deeds, what}; }

void Tape::checkDigest(const Record& record) const {
  // One that was taken while a form waits would say nothing about the acts before it.
  if (!digest || running_ || !waiting_.empty()) return;
  if (static_cast<std::int64_t>(digest()) != record.numbers.at(0)) differs("another state");
}

void Tape::absorb() {
  for (; next_ < replayed_.size(); ++next_) {
    const Record& record = replayed_[next_];
    switch (record.kind) {
      case RecordKind::fact:
        facts_[{static_cast<Source>(record.numbers.at(0)), record.texts.at(0)}] = record;
        break;
      case RecordKind::viewHeight:
        if (running_ && record.numbers.at(1) > passed_) return;
        viewHeights_[{record.texts.at(0), record.texts.at(1)}] =
            static_cast<int>(record.numbers.at(0));
        if (setViewHeight) {
          setViewHeight(record.texts.at(0), record.texts.at(1),
                        static_cast<int>(record.numbers.at(0)));
        }
        break;
      case RecordKind::digest:
        checkDigest(record);
        break;
      case RecordKind::returned:
        absorbReturn(record);
        continue;
      case RecordKind::stepBegins:
        if (listener != nullptr) listener->stepBegins(record.texts.at(0));
        break;
      case RecordKind::stepEnds:
        if (listener != nullptr) listener->stepEnds();
        break;
      case RecordKind::outcome:
      case RecordKind::outcomeBeside:
      case RecordKind::act:
      case RecordKind::hostAct:
      case RecordKind::answer:
      case RecordKind::closed:
        return;
      default:
        break;
    }
    write(record);
  }
}

/// What was taken back isn't on this tape any more, so that its places are others.
void Tape::absorbReturn(const Record& record) {
  const bool pastWriting = record.numbers.at(1) != 0;
  if (pastWriting && listener != nullptr) listener->returnedPastWriting();
  write({RecordKind::returned,
         {static_cast<std::int64_t>(place_.written), record.numbers.at(1)},
         {}});
}

bool Tape::replaysOn() {
  if (!replaying_) return false;
  absorb();
  if (endsWithinAct_ && next_ == replayed_.size()) goLive();
  return replaying_;
}

Record Tape::takeOutcome(Source source) {
  if (next_ == replayed_.size()) differs("something that wasn't asked before");
  // Moved, since a reply can be large.
  Record record = std::move(replayed_[next_]);
  if (record.kind == RecordKind::outcomeBeside) {
    differs("a reply or file beside the record that is missing or damaged");
  }
  if (record.kind != RecordKind::outcome ||
      record.numbers.at(0) != static_cast<std::int64_t>(source)) {
    differs("something else that is asked");
  }
  ++next_;
  write(record);
  return record;
}

const Record* Tape::nextDeed() {
  if (!replaying_) return nullptr;
  absorb();
  if (next_ == replayed_.size()) {
    goLive();
    return nullptr;
  }
  const Record& record = replayed_[next_];
  const bool closed = record.kind == RecordKind::closed;
  if (!isDeed(record) && !closed) differs("less that is asked");
  ++next_;
  if (!closed) countDeed();
  passed_ = 0;
  write(record);
  return &record;
}

void Tape::goLive() {
  replaying_ = false;
  if (endsWithinAct_ && !running_) {
    // The act has ended in the replay, so that nobody has written yet that the control waits.
    ready();
  } else {
    commit();
  }
  if (listener != nullptr) listener->replayEnds();
  // The records stay: the acts that are under way hold their texts.
  if (onLive) onLive();
}

}  // namespace awizo::journal
