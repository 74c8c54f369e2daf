#include "journal/loading.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "journal/record_file.h"
#include "journal/tape.h"
#include "journal/values.h"
#include "platform/run_time_error.h"

namespace awizo::journal {
namespace {

using Records = std::vector<Record>;

std::map<std::string, std::string> headerOf(const Record& record) {
  if (record.kind != RecordKind::header || record.texts.size() % 2 != 0) {
    throw errors::typeMismatch();
  }
  std::map<std::string, std::string> header;
  for (std::size_t at = 0; at < record.texts.size(); at += 2) {
    header[record.texts[at]] = record.texts[at + 1];
  }
  return header;
}

/// Whether a record has what its kind needs, so that nobody looks for more.
bool isSound(const Record& record) {
  const std::size_t numbers = record.numbers.size();
  const std::size_t texts = record.texts.size();
  switch (record.kind) {
    case RecordKind::outcome:
      return numbers >= 2;
    case RecordKind::outcomeBeside:
      return numbers >= 2 && texts == 1;
    case RecordKind::fact:
      return numbers >= 2 && texts >= 1;
    case RecordKind::act:
      return numbers == 5 && texts == 3;
    case RecordKind::hostAct:
      return texts >= 1;
    case RecordKind::answer:
      return numbers == 1 && record.numbers[0] >= 0 && record.numbers[0] <= 2;
    case RecordKind::viewHeight:
      return numbers == 2 && texts == 2;
    case RecordKind::digest:
      return numbers == 1;
    case RecordKind::returned:
      return numbers == 2;
    case RecordKind::stepBegins:
      return texts == 1;
    default:
      return true;
  }
}

/// Takes the last act out, with all that it had asked before it was refused.
void takeBack(Records& records) {
  while (!records.empty()) {
    const bool act = isDeed(records.back());
    records.pop_back();
    if (act) return;
  }
  throw errors::typeMismatch();
}

Records doneRecords(Records&& all) {
  Records done;
  done.reserve(all.size());
  for (Record& record : all) {
    if (record.kind == RecordKind::undone) {
      takeBack(done);
    } else {
      done.push_back(std::move(record));
    }
  }
  return done;
}

/// Records one after another, to which others lead: those of a deed, and those since the state was
/// put back.
struct Stretch {
  std::size_t first;
  std::size_t before;  ///< the stretch that leads here; its own number for the beginning
};

/// What the records part into, in their order.
std::vector<Stretch> stretchesOf(const Records& records) {
  std::vector<Stretch> stretches{{0, 0}};
  std::vector<std::size_t> ofDeeds{0};
  std::size_t current = 0;
  const auto begin = [&](std::size_t at) {
    stretches.push_back({at, current});
    current = stretches.size() - 1;
  };
  for (std::size_t at = 0; at < records.size(); ++at) {
    const Record& record = records[at];
    if (record.kind == RecordKind::returned) {
      const auto deed = static_cast<std::uint64_t>(record.numbers[0]);
      if (deed >= ofDeeds.size()) throw errors::typeMismatch();
      current = ofDeeds[static_cast<std::size_t>(deed)];
      begin(at);
    } else if (record.kind == RecordKind::stepBegins) {
      begin(at);
    } else if (isDeed(record)) {
      begin(at);
      ofDeeds.push_back(current);
    }
  }
  return stretches;
}

/// Leaves out the acts that were taken back: what stays led to the state at the end.
Records standingRecords(Records&& all) {
  const bool anyReturn = std::ranges::any_of(
      all, [](const Record& record) { return record.kind == RecordKind::returned; });
  if (!anyReturn) return std::move(all);
  const std::vector<Stretch> stretches = stretchesOf(all);
  std::vector<std::size_t> standing{stretches.size() - 1};
  while (standing.back() != 0) standing.push_back(stretches[standing.back()].before);
  Records records;
  records.reserve(all.size());
  for (auto stretch = standing.rbegin(); stretch != standing.rend(); ++stretch) {
    const std::size_t next = *stretch + 1;
    const std::size_t end = next < stretches.size() ? stretches[next].first : all.size();
    std::move(all.begin() + static_cast<std::ptrdiff_t>(stretches[*stretch].first),
              all.begin() + static_cast<std::ptrdiff_t>(end), std::back_inserter(records));
  }
  return records;
}

/// Cuts before the deed after the last one that is wanted.
void cutAfter(Records& records, std::size_t mostDeeds) {
  std::size_t deeds = 0;
  const auto tooMuch = std::ranges::find_if(
      records, [&](const Record& record) { return isDeed(record) && ++deeds > mostDeeds; });
  records.erase(tooMuch, records.end());
}

bool isReply(const Record& record) {
  const bool outcome =
      record.kind == RecordKind::outcome || record.kind == RecordKind::outcomeBeside;
  return outcome && record.numbers[0] == static_cast<std::int64_t>(Source::reply) &&
         record.numbers[1] == endedWell;
}

/// Whether no act was under way, and no form or box open within one.
bool isUsersTurn(const Record& record) {
  return record.kind == RecordKind::ready && !record.numbers.empty() && record.numbers[0] == 0;
}

/// Whether the reply to a request for the order came, and the act that asked hasn't ended since.
bool hasOrderOfUnfinishedAct(const Records& records) {
  bool asked = false;
  bool arrived = false;
  for (const Record& record : records) {
    if (record.kind == RecordKind::request) {
      asked = !record.numbers.empty() && record.numbers[0] != 0;
    } else if (isReply(record)) {
      arrived = arrived || asked;
    } else if (isUsersTurn(record)) {
      arrived = false;
    }
  }
  return arrived;
}

/// Cuts after the last moment at which the control waited. An order is handed out once, so that
/// what follows its reply stays.
void cutUnfinished(RecordedSession& session) {
  Records& records = session.records;
  session.orderArrived = hasOrderOfUnfinishedAct(records);
  if (session.orderArrived) return;
  const auto unfinished =
      std::find_if(records.rbegin(), records.rend(), [](const Record& record) {
        return record.kind == RecordKind::ready || record.kind == RecordKind::digest;
      }).base();
  session.requestUnanswered = std::any_of(unfinished, records.end(), [](const Record& record) {
    return record.kind == RecordKind::request;
  });
  records.erase(unfinished, records.end());
}

}  // namespace

Record headerRecord(const std::map<std::string, std::string>& header) {
  Record record{RecordKind::header, {}, {}};
  for (const auto& [name, value] : header) {
    record.texts.push_back(name);
    record.texts.push_back(value);
  }
  return record;
}

RecordedSession recordedSession(std::string_view bytes, std::size_t mostDeeds) {
  Records all = wholeRecords(bytes).records;
  if (all.empty()) throw errors::typeMismatch();
  RecordedSession session;
  session.header = headerOf(all.front());
  all.erase(all.begin());
  if (!std::ranges::all_of(all, isSound)) throw errors::typeMismatch();
  session.records = standingRecords(doneRecords(std::move(all)));
  cutAfter(session.records, mostDeeds);
  cutUnfinished(session);
  const auto last =
      std::find_if(session.records.rbegin(), session.records.rend(),
                   [](const Record& record) { return record.kind == RecordKind::summary; });
  if (last != session.records.rend()) session.summary = last->texts;
  session.deeds = static_cast<std::size_t>(std::ranges::count_if(session.records, isDeed));
  return session;
}

}  // namespace awizo::journal
