#include "support/mirror/mirror.h"

#include <set>

namespace awizo::test {

namespace {

using State = Mirror::State;

State ofTable(const State& members, const std::map<int, State>& rows) {
  State state{{"rows", members.at("count")},  {"cells", State::array()},
              {"heights", State::array()},    {"colours", State::array()},
              {"alignments", State::array()}, {"bold", State::array()},
              {"wrap", State::array()}};
  for (const char* name : {"cols", "row", "col", "rowSel", "colSel", "widths", "top", "redraw"}) {
    state[name] = members.at(name);
  }
  for (const auto& [number, row] : rows) {
    state["cells"].push_back(row.at("cells"));
    state["heights"].push_back(row.at("height"));
    if (!row.contains("looks")) continue;
    for (const State& look : row["looks"]) {
      const auto cell = [&, number = number](auto... more) {
        return State::array({number, look.at("col"), more...});
      };
      if (look.at("colour") != "#ffffff") state["colours"].push_back(cell(look["colour"]));
      if (look.at("alignment") != "left") state["alignments"].push_back(cell(look["alignment"]));
      if (look.at("bold") == true) state["bold"].push_back(cell());
      if (look.at("wrap") == true) state["wrap"].push_back(cell());
    }
  }
  return state;
}

/// Members that a "get" doesn't answer.
const std::set<std::string> ofTheFeedAlone{"cover", "place", "style",     "count",
                                           "tag",   "long",  "alignment", "allowsNone"};

}  // namespace

void Mirror::take(const protocol::Json& changes) {
  const State told(changes);
  const State forms = told.value("forms", State::object());
  const State controls = told.value("controls", State::object());
  for (const auto& [name, members] : forms.items()) {
    forms_[name].update(members);
  }
  for (const auto& [name, changed] : controls.items()) {
    State members = changed;
    Held& held = controls_[name];
    for (const State& row : members.value("lines", State::array())) held.rows[row.at("row")] = row;
    members.erase("lines");
    held.members.update(members);
    if (held.members.contains("count")) {
      held.rows.erase(held.rows.lower_bound(held.members["count"].get<int>()), held.rows.end());
    }
  }
}

State Mirror::form(const std::string& name) const {
  State state = forms_.at(name);
  state.erase("enabled");
  return state;
}

State Mirror::control(const std::string& name) const {
  const Held& held = controls_.at(name);
  const State& members = held.members;
  State state = State::object();
  if (members.at("kind") == "table") {
    state = ofTable(members, held.rows);
    for (const char* common : {"kind", "visible", "enabled"}) state[common] = members.at(common);
  } else {
    for (const auto& [member, value] : members.items()) {
      if (!ofTheFeedAlone.contains(member)) state[member] = value;
    }
  }
  if (members.at("kind") == "dropDownList") {
    state["rows"] = State::array();
    for (const auto& [number, row] : held.rows) state["rows"].push_back(row.at("text"));
  }
  if (members.at("visible") == true && !members.at("place").is_null()) {
    state.update(members.at("place"));
  }
  return state;
}

}  // namespace awizo::test
