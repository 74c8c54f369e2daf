#include "hosts/headless/desk_records.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <utility>

#include "desk/choose_path.h"
#include "platform/forms/keys.h"

namespace awizo::headless {

namespace {

using protocol::Json;

struct NamedTask {
  HostTask task;
  std::string_view name;
};

constexpr std::array tasks{
    NamedTask{HostTask::startAgain, "startAgain"},
    NamedTask{HostTask::takeBack, "takeBack"},
    NamedTask{HostTask::doAgain, "doAgain"},
    NamedTask{HostTask::findLine, "findLine"},
    NamedTask{HostTask::findAgain, "findAgain"},
    NamedTask{HostTask::showFaults, "showFaults"},
    NamedTask{HostTask::addPackages, "addPackages"},
    NamedTask{HostTask::distribute, "distribute"},
    NamedTask{HostTask::showNumbers, "showNumbers"},
    NamedTask{HostTask::showGuide, "showGuide"},
    NamedTask{HostTask::showAbout, "showAbout"},
    NamedTask{HostTask::showLabels, "showLabels"},
    NamedTask{HostTask::showPacking, "showPacking"},
    NamedTask{HostTask::scannerPacks, "scannerPacks"},
    NamedTask{HostTask::showPackingList, "showPackingList"},
    NamedTask{HostTask::showPackageSheets, "showPackageSheets"},
    NamedTask{HostTask::showPackingCsv, "showPackingCsv"},
    NamedTask{HostTask::showPapersOfFile, "showPapersOfFile"},
};

std::string keyWords(const CommandKey& key) {
  std::string words;
  switch (key.code) {
    case keys::insert:
      words = "Insert";
      break;
    case keys::remove:
      words = "Delete";
      break;
    case keys::enter:
      words = "Enter";
      break;
    default:
      words = key.code >= keys::f1 ? "F" + std::to_string(key.code - keys::f1 + 1)
                                   : std::string(1, static_cast<char>(key.code));
  }
  if (key.shift) words.insert(0, "Shift+");
  return key.control ? "Ctrl+" + words : words;
}

Json keysOf(const Command& command) {
  Json keys = Json::array();
  for (const CommandKey& key : command.keys) {
    keys.push_back({{"code", key.code}, {"control", key.control}, {"shift", key.shift}});
  }
  return keys;
}

template <class NameOf>
Json jsonOf(const Command& command, const NameOf& nameOfControl) {
  const auto name = [&](const Control* control) {
    return control == nullptr ? Json(nullptr) : Json(nameOfControl(control));
  };
  const bool presses = command.button != nullptr;
  const std::string key = command.keys.empty() ? "" : keyWords(command.keys.front());
  return {{"words", command.plainWords()},
          {"icon", command.icon},
          {presses ? "on" : "task", presses ? name(command.button) : Json(taskName(command.task))},
          {"keys", keysOf(command)},
          {"key", key},
          {"place", name(command.place)},
          {"inDialogs", command.task == HostTask::showGuide},
          {"onCurrentRow", command.onCurrentRow},
          {"tip", key.empty() ? "" : command.tip(key)}};
}

}  // namespace

std::string_view taskName(HostTask task) {
  const auto found = std::ranges::find(tasks, task, &NamedTask::task);
  return found == tasks.end() ? "" : found->name;
}

HostTask taskNamed(std::string_view name) {
  const auto found = std::ranges::find(tasks, name, &NamedTask::name);
  if (found == tasks.end()) {
    throw protocol::BadLine("There is no task \"" + std::string(name) + "\".");
  }
  return found->task;
}

std::vector<CommandMenu> doneMenus(std::vector<CommandMenu> menus,
                                   const std::function<bool(const Command& command)>& isDone) {
  for (CommandMenu& menu : menus) {
    for (std::vector<Command>& group : menu.groups) std::erase_if(group, std::not_fn(isDone));
    std::erase_if(menu.groups, [](const auto& group) { return group.empty(); });
  }
  std::erase_if(menus, [](const CommandMenu& menu) { return menu.groups.empty(); });
  return menus;
}

Json menusJson(const std::vector<CommandMenu>& menus, const std::function<bool(HostTask)>& isOn) {
  Json all = Json::array();
  for (const CommandMenu& menu : menus) {
    Json commands = Json::array();
    for (std::size_t group = 0; group < menu.groups.size(); ++group) {
      for (const Command& command : menu.groups[group]) {
        Json one = jsonOf(command, [](const Control* control) { return control->name(); });
        one["group"] = group;
        if (command.isSwitch) one["isOn"] = isOn(command.task);
        commands.push_back(std::move(one));
      }
    }
    all.push_back({{"heading", menu.heading}, {"commands", std::move(commands)}});
  }
  return all;
}

Json commandJson(const Command& command, const protocol::FormDirectory& forms) {
  return jsonOf(command, [&](const Control* control) { return forms.nameOf(control); });
}

void addFileLines(protocol::Dispatcher& dispatcher, AwizoWysylki& control) {
  dispatcher.clientActions["choosePath"] = [&control](const Json& line) {
    choosePath(control.dlgWczytajZapisz, protocol::textMember(line, "path"));
  };
}

Json savedEvent(const Deed& deed) { return {{"event", "saved"}, {"path", deed.text}}; }

}  // namespace awizo::headless
