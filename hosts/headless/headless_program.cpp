#include "hosts/headless/headless_program.h"

#include <iostream>
#include <memory>
#include <utility>

#include "adapters/libxml2/libxml2.h"
#include "hosts/common/given_host.h"
#include "hosts/common/program/recorded_options.h"
#include "hosts/headless/conversation.h"
#include "hosts/headless/desk_records.h"
#include "hosts/headless/recording.h"
#include "hosts/protocol/answers.h"
#include "hosts/protocol/changes/feed_actions.h"
#include "hosts/protocol/control_access.h"
#include "hosts/version.h"
#include "journal/recording.h"

namespace awizo::headless {

namespace {

/// The control in its surroundings, with a client that speaks lines to it.
class Program {
 public:
  /// The options as they were given, and with what the replayed session adds.
  Program(const Options& given, const Options& options, journal::RecordedSession&& replayed,
          Machine& machine, std::istream& in, std::ostream& out);

  /// From the control's creation to its end.
  void run();

 private:
  void tellWhatIsOpen();

  Conversation conversation_;
  Libxml2 xml_;
  std::unique_ptr<GrowingFile> record_;
  std::unique_ptr<Locale> locale_;
  OptionsPage page_;
  OptionsBag bag_;
  ReportingHost host_;
  std::unique_ptr<SettingsStore> settings_;
  std::unique_ptr<Clock> clock_;
  journal::Tape tape_;
  journal::TapedPlatform taped_;
  SessionState session_;
  AwizoWysylki control_;
  journal::Recording recording_;
  protocol::ControlAccess access_;
  protocol::ChangeFeed feed_;
};

void reportLostRecord(const std::string& description) {
  std::cerr << "awizo-headless: the record can't be written any more: " << description
            << ". The work goes on without it.\n";
}

Program::Program(const Options& given, const Options& options, journal::RecordedSession&& replayed,
                 Machine& machine, std::istream& in, std::ostream& out)
    : conversation_(in, out),
      record_(newRecord(options, localeName(options, machine), machine)),
      locale_(machine.locale(localeName(options, machine))),
      page_(options),
      bag_(options),
      host_([this](std::string_view property) {
        conversation_.emit(protocol::propertyEvent(property));
      }),
      settings_(machine.settings(options)),
      clock_(machine.clock(options)),
      tape_(std::move(replayed.records), record_.get()),
      taped_(tape_,
             {.xml = xml_,
              .http = machine.http(),
              .page = page_,
              .bag = bag_,
              .host = host_,
              .settings = *settings_,
              .files = machine.files(),
              .clock = *clock_,
              .locale = *locale_,
              .screenFace = conversation_,
              .version = programVersion},
             askedToday(given)),
      session_(taped_.platform),
      control_(taped_.platform, session_),
      recording_(tape_, taped_, control_),
      access_(control_, bag_),
      feed_(access_.forms(),
            [this](const protocol::Json& changes) { conversation_.emit(changes); }) {
  protocol::addFeedActions(access_.dispatcher(), access_.forms(), feed_);
  addDeskRecords(access_.dispatcher(), control_);
  conversation_.beforeWaiting = [this] { feed_.flush(); };
  for (Form* dialog : access_.dialogs()) conversation_.watch(*dialog);
  conversation_.act = [this](const protocol::Json& line) { return access_.act(line); };
  access_.dispatcher().noteHostDeed = [this](const protocol::Json& line, const auto& deed) {
    return recording_.doHostAct(hostActOf(line), deed);
  };
  recording_.performHostAct = [this](const std::vector<std::string>& texts) {
    access_.act(lineOf(texts));
  };
  tape_.onTrouble = reportLostRecord;
  recording_.onLive = [this] { tellWhatIsOpen(); };
  conversation_.silent = tape_.replaying();
}

void Program::tellWhatIsOpen() {
  conversation_.silent = false;
  for (const Form* form : taped_.screen.opened()) {
    if (form != &control_.form) conversation_.emit(protocol::formEvent(*form));
  }
}

void Program::run() {
  recording_.start();
  conversation_.run();
  access_.end();
}

}  // namespace

int runHeadless(const Options& options, Machine& machine, std::istream& in, std::ostream& out) {
  journal::RecordedSession replayed = sessionToReplay(options, machine);
  const Options whole = withRecorded(options, replayed.header);
  Program program(options, whole, std::move(replayed), machine, in, out);
  try {
    program.run();
  } catch (const journal::ReplayDiffers& differs) {
    std::cerr << "awizo-headless: the replay differs at act " << differs.deed << ": "
              << differs.what << '\n';
    return exitReplayDiffers;
  } catch (const InputEnded&) {
    return exitInputEndedEarly;
  } catch (const ProgramEnded&) {
    return exitEndedBySystem;
  }
  return exitDone;
}

}  // namespace awizo::headless
