#include "hosts/headless/desk_records.h"

#include <utility>

#include "desk/choose_path.h"
#include "desk/commands.h"

namespace awizo::headless {

namespace {

using protocol::Json;

Json keysOf(const Command& command) {
  Json keys = Json::array();
  for (const CommandKey& key : command.keys) {
    keys.push_back({{"code", key.code}, {"control", key.control}});
  }
  return keys;
}

/// Nothing for what no button does: the client's own program has its own ways for that.
Json commandJson(const Command& command) {
  return {{"words", command.plainWords()},
          {"icon", command.icon},
          {"on", command.button->name()},
          {"keys", keysOf(command)},
          {"place", command.place == nullptr ? Json(nullptr) : Json(command.place->name())}};
}

Json menusJson(AwizoForm& form) {
  Json menus = Json::array();
  for (const CommandMenu& menu : commandMenus(form)) {
    Json commands = Json::array();
    for (const auto& group : menu.groups) {
      for (const Command& command : group) {
        if (command.button != nullptr) commands.push_back(commandJson(command));
      }
    }
    menus.push_back({{"heading", menu.heading}, {"commands", std::move(commands)}});
  }
  return menus;
}

}  // namespace

void addDeskRecords(protocol::Dispatcher& dispatcher, AwizoWysylki& control) {
  dispatcher.records["commands"] = [&control] { return menusJson(control.form); };
}

void addFileLines(protocol::Dispatcher& dispatcher, AwizoWysylki& control) {
  dispatcher.clientActions["choosePath"] = [&control](const Json& line) {
    choosePath(control.dlgWczytajZapisz, protocol::textMember(line, "path"));
  };
}

Json savedEvent(const Deed& deed) { return {{"event", "saved"}, {"path", deed.text}}; }

}  // namespace awizo::headless
