#include "hosts/headless/headless_program.h"

#include <memory>
#include <utility>

#include "adapters/libxml2/libxml2.h"
#include "assistants/assisted_face.h"
#include "desk/host_boxes.h"
#include "desk/layout_words.h"
#include "hosts/common/given_host.h"
#include "hosts/common/program/kept_record.h"
#include "hosts/common/program/recorded_options.h"
#include "hosts/headless/conversation.h"
#include "hosts/headless/desk_records.h"
#include "hosts/headless/kept_work.h"
#include "hosts/headless/recording.h"
#include "hosts/headless/served_desk.h"
#include "hosts/headless/step_lines.h"
#include "hosts/protocol/answers.h"
#include "hosts/protocol/changes/feed_actions.h"
#include "hosts/protocol/control_access.h"
#include "hosts/protocol/list_proposals.h"
#include "hosts/version.h"
#include "journal/history.h"
#include "journal/recording.h"
#include "journal/unfinished_work.h"
#include "platform/text.h"

namespace awizo::headless {

namespace {

std::unique_ptr<ServedNumbers> numbersOf(Machine& machine, const Clock& clock,
                                         AwizoWysylki& control) {
  if (machine.numbers() == nullptr) return nullptr;
  return std::make_unique<ServedNumbers>(*machine.numbers(), clock, control, machine.isBrowser());
}

/// The control in its surroundings, with a client that speaks lines to it.
class Program {
 public:
  Program(Beginning&& beginning, Machine& machine, Conversation& conversation);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// From the control's creation to its end.
  void run();

 private:
  void addLines();
  void tellWhatIsOpen();
  void tell(const std::string& words);
  void tellOfTrouble(const RunTimeError& error);
  void tellSteps();

  Conversation& conversation_;
  AssistedFace face_;
  Options options_;
  Libxml2 xml_;
  std::unique_ptr<Locale> locale_;
  OptionsPage page_;
  OptionsBag bag_;
  ReportingHost host_;
  std::unique_ptr<SettingsStore> settings_;
  std::unique_ptr<Clock> clock_;
  std::unique_ptr<GrowingFile> record_;  ///< that the options ask for
  KeptRecord kept_;                      ///< that the machine keeps
  journal::Tape tape_;
  journal::TapedPlatform taped_;
  SessionState session_;
  AwizoWysylki control_;
  journal::Recording recording_;
  journal::History history_;
  std::unique_ptr<ServedNumbers> numbers_;
  ServedDesk desk_;
  protocol::ControlAccess access_;
  protocol::ChangeFeed feed_;
  protocol::ListProposals proposals_;
  int savings_ = 0;
  bool tellsFiles_ = false;
  protocol::Json steps_;  ///< as they were told last; null for a client that isn't told
};

Program::Program(Beginning&& beginning, Machine& machine, Conversation& conversation)
    : conversation_(conversation),
      face_(conversation),
      options_(std::move(beginning.options)),
      locale_(machine.locale(localeName(options_, machine))),
      page_(options_),
      bag_(options_),
      host_([this](std::string_view property) {
        conversation_.emit(protocol::propertyEvent(property));
      }),
      settings_(machine.settings(options_)),
      clock_(machine.clock(options_)),
      record_(newRecord(options_, localeName(options_, machine), machine)),
      kept_(machine.records(), headerOf(options_, localeName(options_, machine)),
            [this](const RunTimeError& error) { tellOfTrouble(error); }),
      tape_(std::move(beginning.replayed.records),
            record_ == nullptr ? kept_.file() : record_.get(),
            record_ == nullptr ? kept_.texts() : nullptr),
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
              .screenFace = face_,
              .version = programVersion},
             std::move(beginning.today)),
      session_(taped_.platform),
      control_(taped_.platform, session_),
      recording_(tape_, taped_, control_),
      history_(tape_, control_),
      numbers_(numbersOf(machine, *clock_, control_)),
      desk_({.face = face_,
             .control = control_,
             .history = history_,
             .numbers = numbers_ ? &numbers_->offer() : nullptr},
            numbers_.get(),
            {.clock = *clock_,
             .files = machine.files(),
             .settings = *settings_,
             .locale = *locale_,
             .isBrowser = machine.isBrowser()},
            conversation_),
      access_(control_, bag_),
      feed_(access_.forms(),
            [this](const protocol::Json& changes) { conversation_.emit(changes); }),
      proposals_(access_.forms(), *locale_,
                 [this](const protocol::Json& event) { conversation_.emit(event); }) {
  addLines();
  for (Form* dialog : access_.dialogs()) conversation_.watch(*dialog);
  conversation_.act = [this](const protocol::Json& line) { return access_.act(line); };
  conversation_.beforeWaiting = [this] {
    feed_.flush();
    tellSteps();
    desk_.tellWords();
  };
  recording_.performHostAct = [this](const std::vector<std::string>& texts) {
    access_.act(lineOf(texts));
  };
  tape_.onTrouble = [this](const RunTimeError& error) { tellOfTrouble(error); };
  if (kept_.file() != nullptr) {
    tape_.summary = [this] {
      return journal::textsOf(
          journal::summaryOf(control_, *clock_, [this] { return desk_.wouldBeLost(); }));
    };
  }
  recording_.onLive = [this, record = std::move(beginning.record), time = beginning.time] {
    tellWhatIsOpen();
    if (record.empty()) return;
    if (tape_.recording()) kept_.forgetReplayed(record);
    tell(joined({words::continued, time}));
  };
  conversation_.silent = tape_.replaying();
}

Program::~Program() {
  control_.form.deeds.remove(savings_);
  conversation_.act = nullptr;
  conversation_.beforeWaiting = nullptr;
  conversation_.onWork = nullptr;
  conversation_.onWorkEnd = nullptr;
  conversation_.onModal = nullptr;
  conversation_.onModalEnd = nullptr;
}

void Program::addLines() {
  protocol::Dispatcher& dispatcher = access_.dispatcher();
  protocol::addFeedActions(dispatcher, access_.forms(), feed_);
  desk_.serve(access_);
  addFileLines(dispatcher, control_);
  addStepLines(dispatcher, control_, history_, [this](const std::string& words) { tell(words); });
  dispatcher.clientActions["propose"] = [this](const protocol::Json& line) {
    proposals_.propose(line);
  };
  dispatcher.clientActions["followSteps"] = [this](const protocol::Json&) {
    steps_ = protocol::Json::object();
  };
  dispatcher.clientActions["showUnlessShown"] = [this, &dispatcher](const protocol::Json&) {
    if (!control_.form.shown()) dispatcher.act({{"do", "show"}});
  };
  dispatcher.clientActions["followFiles"] = [this](const protocol::Json&) { tellsFiles_ = true; };
  savings_ = control_.form.deeds.add([this](const Deed& deed) {
    if (tellsFiles_ && deed.kind == Deed::Kind::saved) conversation_.emit(savedEvent(deed));
  });
  dispatcher.noteHostDeed = [this](const protocol::Json& line, const auto& deed) {
    return recording_.doHostAct(hostActOf(line), deed);
  };
}

void Program::tellWhatIsOpen() {
  conversation_.silent = false;
  for (const Form* form : taped_.screen.opened()) {
    if (form != &control_.form) conversation_.emit(protocol::formEvent(*form));
  }
}

void Program::tell(const std::string& words) {
  desk_.tell(words);
  conversation_.emit({{"event", "told"}, {"text", words}});
}

void Program::tellOfTrouble(const RunTimeError& error) {
  complain(joined({"the record can't be written any more: ", error.description(),
                   ". The work goes on without it."}));
  if (record_ == nullptr) tell(joined({words::notRecorded, diskRefusal(error)}));
}

void Program::tellSteps() {
  if (steps_.is_null()) return;
  protocol::Json now{{"event", "steps"}};
  now.update(stepCommands(control_, history_));
  if (now == steps_) return;
  conversation_.emit(now);
  steps_ = std::move(now);
}

void Program::run() {
  recording_.start();
  conversation_.run();
  access_.end();
}

}  // namespace

int runHeadless(const Options& options, Machine& machine, Lines& lines) {
  Conversation conversation(lines);
  if (machine.seesWaitingLines()) {
    conversation.lineWaits = [&machine] { return machine.lineWaits(); };
  }
  try {
    Program(beginningOf(options, machine, conversation), machine, conversation).run();
  } catch (const journal::ReplayDiffers& differs) {
    complain(
        joined({"the replay differs at act ", std::to_string(differs.deed), ": ", differs.what}));
    return exitReplayDiffers;
  } catch (const InputEnded&) {
    return exitInputEndedEarly;
  } catch (const ProgramEnded&) {
    return exitEndedBySystem;
  }
  return exitDone;
}

}  // namespace awizo::headless
