#include "hosts/headless/kept_work.h"

#include <optional>

#include "desk/host_boxes.h"
#include "desk/launch_file.h"
#include "desk/unfinished_question.h"
#include "hosts/common/program/recorded_options.h"
#include "hosts/headless/recording.h"
#include "hosts/headless/start_screen.h"
#include "journal/texts_beside.h"
#include "platform/run_time_error.h"

namespace awizo::headless {

namespace {

Beginning goingOn(const Options& options, RecordFolder& records,
                  const journal::UnfinishedWork& work) {
  // A replay that fails must not hide other work at each start.
  caughtError([&] { records.markTried(work.record); });
  Beginning beginning;
  beginning.replayed = journal::keptSession(records, work.record);
  beginning.options = optionsToGoOn(options, beginning.replayed.header);
  beginning.today.page = options.pageUrl.has_value();
  beginning.record = work.record;
  beginning.time = work.summary.time;
  return beginning;
}

/// Asks about work that was left behind; nothing where the session doesn't go on with it.
std::optional<Beginning> takenUp(const Options& options, RecordFolder& records,
                                 Conversation& conversation) {
  const auto work = journal::unfinishedWork(records);
  if (!work) return std::nullopt;
  const Choice choice = conversation.choose(unfinishedQuestion(*work));
  try {
    if (choice == Choice::goOn) return goingOn(options, records, *work);
    if (choice == Choice::startAfresh) records.remove(work->record);
  } catch (const RunTimeError& error) {
    conversation.askFirst(choice == Choice::goOn ? unreadableRecord(error)
                                                 : recordThatStays(error));
  }
  return std::nullopt;
}

}  // namespace

Beginning beginningOf(const Options& options, Machine& machine, Conversation& conversation) {
  if (machine.records() != nullptr && !options.replayFile) {
    if (auto beginning = takenUp(options, *machine.records(), conversation)) return *beginning;
  }
  if (machine.hasStartPage() && !namesSession(options) && !options.replayFile) {
    return {chosenAtStart(options, machine, conversation), {}, askedToday(options)};
  }
  journal::RecordedSession replayed = sessionToReplay(options, machine);
  const Options whole = withRecorded(options, replayed.header);
  return {whole, std::move(replayed), askedToday(options)};
}

}  // namespace awizo::headless
