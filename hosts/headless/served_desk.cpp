#include "hosts/headless/served_desk.h"

#include <algorithm>
#include <utility>

#include "assistants/package_adding.h"
#include "assistants/scanned_unit.h"
#include "desk/box_advice.h"
#include "desk/choose_path.h"
#include "desk/file_places.h"
#include "desk/first_stop.h"
#include "desk/guide_chapter.h"
#include "desk/host_boxes.h"
#include "desk/layout_words.h"
#include "hosts/headless/brought_files.h"
#include "hosts/headless/desk_records.h"
#include "hosts/headless/packing_records.h"
#include "hosts/protocol/answers.h"
#include "hosts/version.h"
#include "platform/forms/keys.h"
#include "platform/forms/table_text.h"
#include "platform/text.h"
#include "session/record/off_line_path.h"
#include "session/set_up.h"

namespace awizo::headless {

namespace {

using protocol::Json;

std::vector<Command> allButtonCommands(AwizoWysylki& control,
                                       const std::vector<CommandMenu>& menus) {
  std::vector<Command> commands = buttonCommands(menus);
  for (const auto& more :
       {lineDialogCommands(control.dlgDodaj), countryListCommands(control.dlgIsoCodes)}) {
    commands.insert(commands.end(), more.begin(), more.end());
  }
  return commands;
}

std::vector<CommandMenu> servedMenus(AwizoForm& form, bool hasNumbers, bool isBrowser) {
  std::vector<CommandMenu> menus = commandMenus(form);
  if (isBrowser) leaveToBrowser(menus);
  return doneMenus(std::move(menus), [&](const Command& command) {
    if (command.button != nullptr) return true;
    const bool isDone = command.task != HostTask::showNumbers || hasNumbers;
    return isDone && !taskName(command.task).empty();
  });
}

Json boxWithAdvice(const MessageBox& box) {
  Json event = protocol::boxEvent(box);
  const std::string advice = adviceOn(box);
  if (!advice.empty()) event["advice"] = advice;
  return event;
}

std::string progress(std::string_view words, int done, int all) {
  return replaceAll(replaceAll(words, "%1", std::to_string(done)), "%2", std::to_string(all));
}

}  // namespace

ServedDesk::ServedDesk(const Assistance& with, ServedNumbers* numbers, const DeskMachine& machine,
                       Conversation& conversation)
    : with_(with),
      numbers_(numbers),
      machine_(machine),
      control_(with.control),
      conversation_(conversation),
      menus_(servedMenus(control_.form, numbers != nullptr, machine.isBrowser)),
      commands_(allButtonCommands(control_, menus_)),
      watch_(control_, machine.clock),
      line_(control_.editor),
      finder_(control_.editor),
      countries_(control_.dlgIsoCodes.grdISO, 0,
                 [&locale = machine.locale](std::string_view text) { return locale.upper(text); }),
      packagesDialog_(control_.editor, with.numbers),
      distributionDialog_(control_.editor),
      papers_(control_.editor, machine.files, machine.settings, conversation),
      scannerSwitch_(finder_, machine.settings,
                     [this](std::string_view ean) { return packScannedUnit(ean); }),
      scannedTyping_(scannedFields(control_)) {
  watch_.ask = [this](const Question& question) { return conversation_.ask(question); };
  finder_.say = [this](std::string_view words) { line_.say(words); };
}

void ServedDesk::serve(protocol::ControlAccess& access) {
  protocol::Dispatcher& dispatcher = access.dispatcher();
  for (Form* form : {static_cast<Form*>(&finder_.findDialog),
                     static_cast<Form*>(&finder_.faultList), static_cast<Form*>(&packagesDialog_),
                     static_cast<Form*>(&distributionDialog_), &papers_.dialog()}) {
    access.add(*form);
    conversation_.watch(*form);
  }
  if (numbers_ != nullptr) {
    access.add(numbers_->rangeDialog());
    conversation_.watch(numbers_->rangeDialog());
  }
  dispatcher.records["commands"] = [this] {
    return menusJson(menus_, [this](HostTask) { return scannerSwitch_.isOn(); });
  };
  dispatcher.records["dialogCommands"] = [this, &access] {
    Json commands = Json::array();
    for (const Command& command : commands_) {
      if (&command.button->form() == &control_.form) continue;
      commands.push_back(commandJson(command, access.forms()));
    }
    return commands;
  };
  dispatcher.records["typedInto"] = [this, &access] {
    Json fields = Json::array();
    for (const ScannedField& field : scannedTyping_.fields()) {
      fields.push_back(access.forms().nameOf(field.control));
    }
    Json tables = Json::array();
    for (const Table* table : scannedTables(control_.form)) tables.push_back(table->name());
    return Json{{"fields", std::move(fields)},
                {"tables", std::move(tables)},
                {"lists", Json::array({access.forms().nameOf(&control_.dlgIsoCodes.grdISO)})}};
  };
  dispatcher.clientActions["scan"] = [this, &access](const Json& line) {
    scan(access.forms().control(protocol::textMember(line, "on")), line);
  };
  dispatcher.clientActions["scanKey"] = [this](const Json& line) { scanKey(line); };
  serveRecords(dispatcher);
  dispatcher.clientActions["followDesk"] = [this](const Json&) { follow(); };
  dispatcher.clientActions["packRest"] = [this](const Json& line) { packRest(line); };
  dispatcher.clientActions["showPapersOf"] = [this](const Json& line) {
    const std::string path = protocol::textMember(line, "path");
    papers_.showSaved(path, line.contains("name") ? protocol::textMember(line, "name") : path);
  };
  dispatcher.clientActions["printed"] = [this](const Json&) { papers_.printingEnded(); };
  dispatcher.clientActions["command"] = [this](const Json& line) { choose(line); };
  dispatcher.clientActions["stop"] = [](const Json&) { throw Refused("No assistant works."); };
  dispatcher.aroundUserAct = [this, &access](const Json& line, const auto& act) {
    if (!follows_) return act();
    // A form is closed by its own name.
    const bool closes = line["do"] == "close";
    takeAct(closes ? nullptr : &access.forms().control(protocol::textMember(line, "on")), line,
            act);
  };
  dispatcher.clientActions["bring"] = [this](const Json& line) { bring(line); };
  // What began before the client followed ends after it.
  conversation_.onWork = [this](std::string_view what) { workBegins(what); };
  conversation_.onWorkEnd = [this] { workEnds(); };
  act_ = [&dispatcher](const Json& line) { dispatcher.act(line); };
}

void ServedDesk::serveRecords(protocol::Dispatcher& dispatcher) {
  dispatcher.records["standing"] = [this] { return standing(); };
  dispatcher.records["guideChapter"] = [this] {
    const Form* top = control_.screen.top();
    return Json(top == nullptr ? "" : guideChapter(top->name()));
  };
  dispatcher.records["markedText"] = [this] { return Json(markedText()); };
  dispatcher.records["packing"] = [this] { return packingJson(packingOverview(control_.editor)); };
}

void ServedDesk::follow() {
  follows_ = true;
  conversation_.describe = boxWithAdvice;
  conversation_.onModal = [this](Form& form) { opened(form); };
  if (numbers_ != nullptr) {
    conversation_.onModalEnd = [this](Form& form) { numbers_->closed(form); };
    finder_.moreFaults = [this] { return numbers_->offer().faults(); };
  }
  if (!works_.empty()) tellWork();
  // Work that was gone on with may stand in it.
  if (control_.dlgWczytajZapisz.shown()) tellWhetherFilesMayBeBrought(control_.dlgWczytajZapisz);
}

void ServedDesk::opened(const Form& form) {
  tellWhetherFilesMayBeBrought(form);
  if (numbers_ != nullptr) numbers_->opened(form);
  if (Control* stop = firstStop(control_, form)) stop->userFocus();
  DlgWczytajZapisz& files = control_.dlgWczytajZapisz;
  if (&form != &files) return;
  const UserFolders user{.home = "", .documents = keptOffLinePath(machine_.settings)};
  const std::string folder = proposedFolder(files, machine_.files, machine_.settings, user);
  if (!folder.empty()) userGoTo(files, {.words = "", .folder = folder, .file = ""});
}

void ServedDesk::tellWhetherFilesMayBeBrought(const Form& form) {
  const DlgWczytajZapisz& files = control_.dlgWczytajZapisz;
  if (&form != &files) return;
  conversation_.emit(mayBringEvent(form, files.isForReading()));
}

void ServedDesk::tell(const std::string& words) { watch_.tell(words); }

void ServedDesk::tellWords() {
  if (!follows_) return;
  if (std::string words = line_.words(); words != toldLine_) {
    conversation_.emit({{"event", "line"}, {"text", words}});
    toldLine_ = std::move(words);
  }
  if (numbers_ == nullptr) return;
  if (const auto words = numbers_->changedWords()) {
    Json note{{"event", "note"}, {"on", "DlgSzczegoly.txtSerialNumberN"}, {"text", *words}};
    if (numbers_->offer().asksForRange()) note["task"] = taskName(HostTask::showNumbers);
    conversation_.emit(note);
  }
}

void ServedDesk::choose(const Json& line) {
  if (line.contains("task")) return perform(taskNamed(protocol::textMember(line, "task")));
  const std::string name = protocol::textMember(line, "on");
  const auto found = std::ranges::find_if(commands_, [&](const Command& command) {
    return &command.button->form() == control_.screen.top() &&
           command.button->name() == name.substr(name.find('.') + 1);
  });
  if (found == commands_.end()) throw Refused("No such command is there now.");
  press(*found);
}

void ServedDesk::press(const Command& command) {
  if (command.isEnabled() && watch_.mayPress(*command.button)) command.button->userPress();
}

void ServedDesk::perform(HostTask task) {
  switch (task) {
    case HostTask::startAgain:
      return startAgain();
    case HostTask::takeBack:
    case HostTask::doAgain:
      return act_({{"do", taskName(task)}});
    case HostTask::findLine:
      return finder_.find();
    case HostTask::findAgain:
      return finder_.findAgain();
    case HostTask::showFaults:
      return finder_.showFaults();
    case HostTask::addPackages:
      return addPackages();
    case HostTask::distribute:
      return distribute();
    case HostTask::showNumbers:
      if (numbers_ == nullptr) throw Refused("There are no package numbers here.");
      return numbers_->showRange();
    case HostTask::showPacking:
      return conversation_.emit({{"event", "showPacking"}});
    case HostTask::scannerPacks:
      scannerSwitch_.turn(!scannerSwitch_.isOn());
      return conversation_.emit(
          {{"event", "switch"}, {"task", taskName(task)}, {"isOn", scannerSwitch_.isOn()}});
    case HostTask::showLabels:
      return papers_.show(Paper::labels);
    case HostTask::showPackingList:
      return papers_.show(Paper::packingList);
    case HostTask::showPackageSheets:
      return papers_.show(Paper::packageSheets);
    case HostTask::showPackingCsv:
      return papers_.handOutPackingCsv();
    case HostTask::showPapersOfFile:
      return conversation_.emit({{"event", "chooseDocument"}});
    case HostTask::showAbout:
      control_.screen.messageBox(aboutBox(versionText(programVersion)));
      return;
    default:
      throw Refused("Nobody does that here.");
  }
}

void ServedDesk::scan(const Control& control, const Json& line) {
  const ScannedField* field = scannedTyping_.find(&control);
  if (field == nullptr) throw Refused("Nothing is scanned there.");
  const std::string text = protocol::textMember(line, "text");
  std::optional<std::string> now;
  if (protocol::booleanMember(line, "isWhole", false)) {
    now = scannedTyping_.pasted(*field, text);
  } else if (text.empty()) {
    now = scannedTyping_.giveBack();
  } else {
    now = scannedTyping_.typed(*field, text, protocol::booleanMember(line, "begins", false));
  }
  if (now) conversation_.emit({{"event", "typed"}, {"on", line["on"]}, {"text", *now}});
}

void ServedDesk::scanKey(const Json& line) {
  if (!control_.form.takesInput()) throw Refused("Nothing is scanned now.");
  const int code = protocol::integerMember(line, "code");
  standsOn_ = line.contains("package") ? protocol::integerMember(line, "package") : 0;
  const AtExit over([this] { standsOn_ = 0; });
  if (code != static_cast<std::int16_t>(code) ||
      !finder_.takeKey(static_cast<std::int16_t>(code))) {
    throw Refused("It is no key of a scanned code.");
  }
}

void ServedDesk::takeAct(Control* control, const Json& line, const std::function<void()>& act) {
  const Json& action = line["do"];
  scannedTyping_.giveBack();
  const bool isHere = control != nullptr && control->form().takesInput();
  if (isHere && action == "key" && takeKey(*control, line)) return;
  if (action != "key") finder_.forgetCode();
  if (const auto* button = dynamic_cast<const Button*>(control);
      button != nullptr && action == "click" && !watch_.mayPress(*button)) {
    return;
  }
  const ScannedField* field = action == "type" ? scannedTyping_.find(control) : nullptr;
  if (field != nullptr) {
    return field->type(ScannedTyping::edited(*field, protocol::textMember(line, "text")));
  }
  act();
  if (action != "doubleClick") return;
  for (const Command& command : commands_) {
    if (command.onDoubleClick && command.place == control) return press(command);
  }
}

bool ServedDesk::takeKey(Control& control, const Json& line) {
  const int code = protocol::integerMember(line, "code");
  if (code != static_cast<std::int16_t>(code)) return false;
  const CommandKey key{static_cast<std::int16_t>(code),
                       protocol::booleanMember(line, "control", false)};
  const std::vector<Table*> scanned = scannedTables(control_.form);
  const bool scans = std::ranges::find(scanned, &control) != scanned.end();
  if (scans && !key.control && finder_.takeKey(key.code)) return true;
  if (&control == &control_.dlgIsoCodes.grdISO && line.contains("text")) {
    const auto row = countries_.rowTyped(protocol::textMember(line, "text"));
    if (row) control_.dlgIsoCodes.grdISO.userRow(*row);
    return true;
  }
  if (protocol::booleanMember(line, "shift", false)) return false;
  for (const Command& command : commands_) {
    if (command.place != &control || std::ranges::find(command.keys, key) == command.keys.end()) {
      continue;
    }
    press(command);
    return true;
  }
  if (auto* table = dynamic_cast<Table*>(&control)) {
    if (const auto row = rowOfKey(*table, key)) {
      table->userRow(*row);
      return true;
    }
  }
  return key.control;
}

std::optional<int> ServedDesk::rowOfKey(const Table& table, const CommandKey& key) {
  if (key.control && key.code == keys::home) return table.firstRow();
  if (key.control && key.code == keys::end) return table.lastRow();
  if (key.control || &table != &control_.dlgIsoCodes.grdISO) return std::nullopt;
  return countries_.rowOfKey(key.code);
}

void ServedDesk::startAgain() {
  if (!control_.form.takesInput() || !watch_.mayTake(WayOut::startAgain)) return;
  conversation_.emit({{"event", "startAgain"}});
}

void ServedDesk::bring(const Json& line) {
  DlgWczytajZapisz& dialog = control_.dlgWczytajZapisz;
  if (!dialog.takesInput() || !dialog.isForReading()) {
    throw Refused("No document to open is being chosen.");
  }
  const std::string folder = keptOffLinePath(machine_.settings);
  const BroughtPlace place = broughtBy(line, machine_.files, folder, conversation_);
  if (place.path.empty()) return;
  // The lists show a folder as it was when it was opened.
  dialog.DirList.userOpen("c:\\");
  dialog.DirList.userOpen(folder);
  if (!place.isNamed) choosePath(dialog, place.path);
}

void ServedDesk::addPackages() {
  if (!control_.form.takesInput()) return;
  const auto plan = packagesDialog_.ask();
  if (!plan) return;
  showBox(addingWords(run(words::packagesAdded, [&](const GoOn& goOn) {
    return awizo::addPackages(with_, *plan, goOn);
  })));
}

void ServedDesk::distribute() {
  if (!control_.form.takesInput()) return;
  const auto order = distributionDialog_.ask();
  if (!order) return;
  showBox(distributionWords(run(words::linesPacked, [&](const GoOn& goOn) {
    return awizo::distribute(with_, order->choice, order->plans, goOn);
  })));
}

void ServedDesk::packRest(const Json& line) {
  if (!control_.form.takesInput()) return;
  const Json& rows = protocol::member(line, "lines");
  if (!rows.is_array()) throw protocol::BadLine("\"lines\" must be an array.");
  DistributionChoice choice;
  choice.spread = Spread::allHere;
  choice.packages = {protocol::integerMember(line, "package")};
  for (const Json& row : rows) choice.lines.push_back(protocol::integerOf(row, "lines"));
  const PackingOverview overview = packingOverview(control_.editor);
  const auto isNoLine = [&](int row) {
    return row < 1 || row > static_cast<int>(overview.lines.size());
  };
  const auto place = std::ranges::find(overview.places, choice.packages[0], &PackingPlace::package);
  if (place == overview.places.end() || std::ranges::any_of(choice.lines, isNoLine)) {
    throw Refused("There is no such row.");
  }
  const std::vector<LinePlan> plans = plansOf(control_.editor, choice);
  if (plans.empty()) return showBox(std::string(nothingToPack));
  showBox(distributionWords(run(words::linesPacked, [&](const GoOn& goOn) {
    return awizo::distribute(with_, choice, plans, goOn);
  })));
}

AssistantReport ServedDesk::run(std::string_view words,
                                const std::function<AssistantReport(const GoOn& goOn)>& work) {
  // The dialog that asked for it is gone first.
  conversation_.beforeWaiting();
  const AtExit over([this] { conversation_.emit({{"event", "rests"}}); });
  const AtExit unseen = hideDialogs();
  return work([&](int done, int all) {
    conversation_.emit({{"event", "works"},
                        {"what", progress(words, done, all)},
                        {"mayStop", static_cast<bool>(conversation_.lineWaits)},
                        {"asks", false}});
    return !conversation_.isToldToStop();
  });
}

std::string ServedDesk::packScannedUnit(std::string_view ean) {
  const AtExit unseen = hideDialogs();
  if (standsOn_ > 0) control_.form.grdOpakowania.userRow(standsOn_);
  return awizo::packScannedUnit(with_, ean);
}

void ServedDesk::showBox(const std::string& words) {
  if (words.empty()) return;
  control_.screen.messageBox({.text = words,
                              .title = std::string(words::boxTitle),
                              .icon = BoxIcon::exclamation,
                              .buttons = BoxButtons::ok});
}

void ServedDesk::workBegins(std::string_view what) {
  works_.emplace_back(what);
  if (follows_) tellWork();
}

void ServedDesk::tellWork() {
  const bool asks = watch_.questionWhileWorking().has_value();
  conversation_.emit(
      {{"event", "works"}, {"what", works_.back()}, {"mayStop", false}, {"asks", asks}});
}

void ServedDesk::workEnds() {
  works_.pop_back();
  if (follows_ && works_.empty()) conversation_.emit({{"event", "rests"}});
}

Json ServedDesk::standing() const {
  return {{"title", watch_.title()},
          {"status", watch_.status()},
          {"address", watch_.address()},
          {"isUnsent", watch_.wouldBeLost()}};
}

std::string ServedDesk::markedText() const {
  const Form* top = control_.screen.top();
  const auto* table = top == nullptr ? nullptr : dynamic_cast<const Table*>(top->focus());
  return table == nullptr ? "" : awizo::markedText(*table);
}

}  // namespace awizo::headless
