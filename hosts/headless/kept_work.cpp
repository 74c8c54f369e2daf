#include "hosts/headless/kept_work.h"

#include "desk/unfinished_question.h"
#include "hosts/common/program/recorded_options.h"
#include "hosts/headless/recording.h"
#include "platform/run_time_error.h"

namespace awizo::headless {

namespace {

Beginning goingOn(const Options& options, RecordFolder& records,
                  const journal::UnfinishedWork& work) {
  Beginning beginning;
  beginning.replayed = journal::recordedSession(records.read(work.record));
  // The session's own partner and locale; the page is today's.
  Options recorded = options;
  recorded.properties.clear();
  recorded.locale.clear();
  beginning.options = withRecorded(recorded, beginning.replayed.header);
  beginning.today.page = options.pageUrl.has_value();
  beginning.record = work.record;
  beginning.time = work.summary.time;
  return beginning;
}

void removeRecord(RecordFolder& records, const std::string& name) {
  try {
    records.remove(name);
  } catch (const RunTimeError&) {
    // It will be offered again.
  }
}

}  // namespace

Beginning beginningOf(const Options& options, Machine& machine, Conversation& conversation) {
  RecordFolder* records = machine.records();
  if (records != nullptr && !options.replayFile) {
    if (const auto work = journal::unfinishedWork(*records)) {
      const Choice choice = conversation.choose(unfinishedQuestion(*work));
      if (choice == Choice::goOn) return goingOn(options, *records, *work);
      if (choice == Choice::startAfresh) removeRecord(*records, work->record);
    }
  }
  journal::RecordedSession replayed = sessionToReplay(options, machine);
  const Options whole = withRecorded(options, replayed.header);
  return {whole, std::move(replayed), askedToday(options)};
}

}  // namespace awizo::headless
