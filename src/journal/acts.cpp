#include "journal/acts.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"
#include "platform/run_time_error.h"

namespace awizo::journal {
namespace {

Form& formNamed(const std::vector<Form*>& forms, const std::string& name) {
  const auto found = std::ranges::find_if(forms, [&](Form* form) { return form->name() == name; });
  if (found == forms.end()) throw errors::typeMismatch();
  return **found;
}

/// The control as the model that the act needs.
template <class Model>
Model& as(Control& control) {
  auto* model = dynamic_cast<Model*>(&control);
  if (model == nullptr) throw errors::typeMismatch();
  return *model;
}

/// What an act has beside the control.
struct Values {
  const Record& act;
  int operator[](std::size_t at) const { return static_cast<int>(act.numbers.at(1 + at)); }
  const std::string& text() const { return act.texts.at(2); }
};

void doubleClick(Control& control) {
  if (control.kind() == ControlKind::table) return as<Table>(control).userDoubleClick();
  if (control.kind() == ControlKind::fileList) return as<FileList>(control).userDoubleClick();
  as<Button>(control).userDoubleClick();
}

void type(Control& control, const std::string& text) {
  if (control.kind() == ControlKind::textField) return as<TextField>(control).userType(text);
  as<DropDownList>(control).userType(text);
}

void chooseRow(Control& control, int row) {
  if (control.kind() == ControlKind::fileList) return as<FileList>(control).userChoose(row);
  as<DropDownList>(control).userChoose(row);
}

std::optional<Date> dateOf(const Values& values) {
  if (values[0] == 0) return std::nullopt;
  return makeDate(values[0], static_cast<unsigned>(values[1]), static_cast<unsigned>(values[2]));
}

std::optional<TimeOfDay> timeOf(const Values& values) {
  if (values[0] < 0) return std::nullopt;
  return TimeOfDay{values[0], values[1], values[2]};
}

void perform(Control& control, ActKind kind, const Values& values) {
  switch (kind) {
    case ActKind::focus:
      return control.userFocus();
    case ActKind::key:
      return control.userKey(static_cast<std::int16_t>(values[0]), values[1] != 0);
    case ActKind::click:
      return as<Button>(control).userClick();
    case ActKind::press:
      return as<Button>(control).userPress();
    case ActKind::doubleClick:
      return doubleClick(control);
    case ActKind::type:
      return type(control, values.text());
    case ActKind::chooseRow:
      return chooseRow(control, values[0]);
    case ActKind::chooseDrive:
      return as<DriveList>(control).userChoose(values.text());
    case ActKind::openFolder:
      return as<FolderList>(control).userOpen(values.text());
    case ActKind::setDate:
      return as<DatePicker>(control).userSet(dateOf(values));
    case ActKind::setTime:
      return as<TimePicker>(control).userSet(timeOf(values));
    case ActKind::clickCell:
      return as<Table>(control).userCell(values[0], values[1]);
    case ActKind::selectCells:
      return as<Table>(control).userSelect(values[0], values[1], values[2], values[3]);
    case ActKind::spin:
      return as<SpinButtons>(control).userSpin(values[0]);
    case ActKind::scroll:
      return as<Table>(control).userScroll(values[0]);
    case ActKind::closeForm:
      break;
  }
  throw errors::typeMismatch();
}

}  // namespace

void perform(const std::vector<Form*>& forms, const Record& act) {
  Form& form = formNamed(forms, act.texts.at(0));
  const auto kind = static_cast<ActKind>(act.numbers.at(0));
  if (kind == ActKind::closeForm) return form.userClose();
  Control* control = form.find(act.texts.at(1));
  if (control == nullptr) throw errors::typeMismatch();
  perform(*control, kind, {act});
}

}  // namespace awizo::journal
