#include "journal/recording.h"

#include <algorithm>

#include "journal/acts.h"
#include "journal/state_digest.h"
#include "platform/forms/table.h"

namespace awizo::journal {
namespace {

// Names of a host's acts.
constexpr const char* showName = "show";
constexpr const char* setName = "set";
constexpr const char* offLineFolderName = "offlineFolder";

}  // namespace

Recording::Recording(Tape& tape, TapedPlatform& taped, AwizoWysylki& control)
    : tape_(tape), control_(control) {
  control.screen.actObserver = &tape;
  tape.digest = [this] { return stateDigest(control_); };
  tape.asksForOrder = [this] { return control_.editor.session.RunningExchange == Exchange::order; };
  tape.isRecorded = [this](const Form& form) {
    return std::ranges::any_of(control_.forms(), [&](const Form* own) { return own == &form; });
  };
  tape.setViewHeight = [this](const std::string& form, const std::string& table, int height) {
    setViewHeight(form, table, height);
  };
  tape.onLive = [this, &taped] {
    taped.screen.showAll();
    if (onLive) onLive();
  };
  taped.screen.perform = [this](const Record& deed) { perform(deed); };
}

void Recording::start() {
  create();
  replay();
}

void Recording::create() {
  tape_.beginsCreation();
  control_.UserControl_Initialize();
  control_.UserControl_ReadProperties();
  tape_.ends(true);
}

void Recording::replay() {
  while (tape_.replaying()) {
    if (const Record* deed = tape_.nextDeed()) perform(*deed);
  }
}

void Recording::perform(const Record& deed) {
  try {
    if (deed.kind == RecordKind::act) {
      journal::perform(control_.forms(), deed);
    } else if (deed.kind == RecordKind::hostAct) {
      if (performHostAct) {
        performHostAct(deed.texts);
      } else {
        performOwn(deed.texts);
      }
    } else {
      tape_.differs("an answer where no box is open");
    }
  } catch (const RunTimeError& error) {
    // A procedure that the host called ended by this error before, too.
    if (deed.kind == RecordKind::act) tape_.differs(error.description());
  } catch (const std::exception& error) {
    tape_.differs(error.what());
  }
}

void Recording::performOwn(const std::vector<std::string>& texts) {
  const std::string& name = texts.at(0);
  if (name == showName) return show();
  if (name == offLineFolderName) return askOffLineFolder();
  if (name != setName) return tape_.differs("an act of another kind of host");
  setProperty(texts.at(1), texts.at(2));
}

void Recording::show() {
  doHostAct({showName}, [this] { control_.UserControl_Show(); });
}

void Recording::setProperty(const std::string& name, const std::string& value) {
  doHostAct({setName, name, value}, [&] { control_.setProperty(name, value); });
}

void Recording::askOffLineFolder() {
  doHostAct({offLineFolderName}, [this] { awizo::askOffLineFolder(control_.dlgWczytajZapisz); });
}

void Recording::setViewHeight(const std::string& form, const std::string& table, int height) {
  for (Form* own : control_.forms()) {
    if (own->name() != form) continue;
    if (auto* shown = dynamic_cast<Table*>(own->find(table))) shown->setViewHeight(height);
  }
}

}  // namespace awizo::journal
