#include "hosts/protocol/changes/control_watch.h"

#include <utility>

#include "hosts/protocol/control_facts.h"
#include "platform/forms/form.h"

namespace awizo::protocol {

void ControlWatch::note(const Change& change) {
  changed_ = true;
  if (change.aspect == Aspect::cell) {
    rows_.changed(change.row);
  } else if (change.aspect == Aspect::rows || change.aspect == Aspect::layout) {
    rows_.allChanged();
  }
}

void ControlWatch::show(RowRange rows) {
  changed_ = true;
  rows_.show(rows);
}

bool ControlWatch::readsAnew() const {
  const ControlKind kind = control_.kind();
  return (kind == ControlKind::folderList || kind == ControlKind::driveList) &&
         control_.form().shown();
}

Json ControlWatch::takeChanges() {
  if (!std::exchange(changed_, false) && !readsAnew()) return Json::object();
  Json changes = takeDifference(held_, controlFacts(control_));
  Json lines = Json::array();
  for (const int row : rows_.take(rowCount(control_), fixedRowCount(control_))) {
    lines.push_back(rowFacts(control_, row));
  }
  if (!lines.empty()) changes["lines"] = std::move(lines);
  return changes;
}

Json takeDifference(Json& held, const Json& now) {
  Json difference = Json::object();
  for (const auto& [name, value] : now.items()) {
    const auto known = held.find(name);
    if (known == held.end() || *known != value) difference[name] = value;
  }
  held = now;
  return difference;
}

}  // namespace awizo::protocol
