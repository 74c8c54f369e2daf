#include "hosts/protocol/control_access.h"

#include <functional>
#include <map>

#include "formats/file_dialog.h"
#include "hosts/protocol/control_members.h"
#include "hosts/protocol/procedures/control_procedures.h"
#include "hosts/protocol/session_json.h"
#include "session/record/off_line_path.h"

namespace awizo::protocol {

ControlAccess::ControlAccess(AwizoWysylki& control, const OptionsBag& bag)
    : control_(control),
      screen_(control.screen),
      forms_(control.form),
      dispatcher_(screen_, forms_) {
  addForms();
  addRecords(bag);
  addHostActions();
  addProcedures(dispatcher_.procedures, control_);
}

std::vector<Form*> ControlAccess::dialogs() const {
  std::vector<Form*> dialogs = control_.forms();
  std::erase(dialogs, &control_.form);
  return dialogs;
}

void ControlAccess::end() {
  if (!dispatcher_.ended) takeDown();
}

void ControlAccess::addForms() {
  std::map<const Form*, std::function<Json()>> members{
      {&control_.form, [this] { return controlMembers(control_); }},
      {&control_.dlgDodaj, [this] { return membersOf(control_.dlgDodaj); }},
      {&control_.dlgdodajPule, [this] { return membersOf(control_.dlgdodajPule); }},
      {&control_.dlgSzczegoly, [this] { return membersOf(control_.dlgSzczegoly); }}};
  for (Form* form : control_.forms()) forms_.add(*form, members[form]);
}

void ControlAccess::addRecords(const OptionsBag& bag) {
  auto& records = dispatcher_.records;
  records["session"] = [this] { return sessionJson(control_.editor.session); };
  records["control"] = [this] { return controlMembers(control_); };
  records["cursor"] = [this] { return cursorName(screen_.cursor()); };
  records["bag"] = [&bag] { return Json(bag.written()); };
  records["settings"] = [this] {
    return Json{{"OffLinePath", keptOffLinePath(control_.editor.platform.settings)}};
  };
}

void ControlAccess::addHostActions() {
  auto& actions = dispatcher_.hostActions;
  actions["show"] = [this](const Json&) { show(); };
  actions["set"] = [this](const Json& line) { set(line); };
  actions["offlineFolder"] = [this](const Json&) { askOffLineFolder(); };
  actions["terminate"] = [this](const Json&) {
    requireNoModalForm();
    takeDown();
  };
}

void ControlAccess::requireNoModalForm() const {
  const Form* top = screen_.top();
  if (top != nullptr && top != &control_.form) {
    throw Refused("The form " + top->name() + " is open.");
  }
}

void ControlAccess::show() {
  if (control_.form.shown()) throw Refused("The control is shown already.");
  control_.UserControl_Show();
}

void ControlAccess::set(const Json& line) {
  const std::string property = textMember(line, "property");
  const Json& value = member(line, "value");
  const std::string text =
      value.is_string() ? textOf(value, "value") : std::to_string(integerOf(value, "value"));
  if (!control_.setProperty(property, text)) {
    throw Refused("The property \"" + property + "\" can't be set.");
  }
}

void ControlAccess::askOffLineFolder() {
  if (!control_.form.shown()) throw Refused("The control isn't shown.");
  requireNoModalForm();
  awizo::askOffLineFolder(control_.dlgWczytajZapisz);
}

void ControlAccess::takeDown() {
  dispatcher_.ended = true;
  control_.UserControl_WriteProperties();
  control_.UserControl_Terminate();
}

}  // namespace awizo::protocol
