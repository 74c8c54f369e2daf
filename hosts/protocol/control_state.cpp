#include "hosts/protocol/control_state.h"

#include "foundation/date_text.h"
#include "hosts/protocol/table_state.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/label.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"

namespace awizo::protocol {

namespace {

Json labelState(const Label& label) {
  Json state{{"caption", label.caption()}};
  if (!label.heading().empty()) state["heading"] = label.heading();
  return state;
}

Json frameState(const Frame& frame) { return {{"caption", frame.caption()}}; }

Json buttonState(const Button& button) { return {{"caption", button.caption()}}; }

Json textFieldState(const TextField& field) {
  return {{"caption", field.caption()}, {"text", field.text()}, {"limit", field.limit()}};
}

Json dropDownListState(const DropDownList& list) {
  return {{"caption", list.caption()},
          {"text", list.text()},
          {"rows", list.rows()},
          {"index", list.index()}};
}

Json datePickerState(const DatePicker& picker) {
  return {{"caption", picker.caption()},
          {"date", picker.date() ? Json(isoDate(*picker.date())) : Json(nullptr)},
          {"checked", picker.date().has_value()},
          {"min", isoDate(DatePicker::min())},
          {"max", isoDate(DatePicker::max())}};
}

Json timePickerState(const TimePicker& picker) {
  return {{"caption", picker.caption()},
          {"time", picker.time() ? Json(hourMinute(*picker.time())) : Json(nullptr)},
          {"checked", picker.time().has_value()}};
}

Json spinButtonsState(const SpinButtons& buttons) {
  return {{"min", buttons.min()}, {"max", buttons.max()}};
}

Json driveListState(const DriveList& list) {
  return {{"text", list.drive()}, {"rows", list.rows()}};
}

Json folderListState(const FolderList& list) {
  return {{"path", list.path()}, {"rows", list.rows()}};
}

Json fileListState(const FileList& list) {
  return {{"path", list.path()},
          {"text", list.fileName()},
          {"rows", list.rows()},
          {"index", list.index()}};
}

/// How a kind is called, and what it has of its own.
struct Kind {
  const char* name;
  Json (*state)(const Control& control);
};

template <class Model, Json (*state)(const Model&)>
Json stateAs(const Control& control) {
  return state(static_cast<const Model&>(control));
}

Kind kindOf(ControlKind kind) {
  switch (kind) {
    case ControlKind::label:
      return {"label", stateAs<Label, labelState>};
    case ControlKind::textField:
      return {"textField", stateAs<TextField, textFieldState>};
    case ControlKind::button:
      return {"button", stateAs<Button, buttonState>};
    case ControlKind::pictureButton:
      return {"pictureButton", stateAs<Button, buttonState>};
    case ControlKind::dropDownList:
      return {"dropDownList", stateAs<DropDownList, dropDownListState>};
    case ControlKind::datePicker:
      return {"datePicker", stateAs<DatePicker, datePickerState>};
    case ControlKind::timePicker:
      return {"timePicker", stateAs<TimePicker, timePickerState>};
    case ControlKind::spinButtons:
      return {"spinButtons", stateAs<SpinButtons, spinButtonsState>};
    case ControlKind::table:
      return {"table", stateAs<Table, tableState>};
    case ControlKind::driveList:
      return {"driveList", stateAs<DriveList, driveListState>};
    case ControlKind::folderList:
      return {"folderList", stateAs<FolderList, folderListState>};
    case ControlKind::fileList:
      return {"fileList", stateAs<FileList, fileListState>};
    case ControlKind::frame:
      return {"frame", stateAs<Frame, frameState>};
  }
  throw BadLine("The control is of no kind that can be told.");
}

}  // namespace

const char* kindName(ControlKind kind) { return kindOf(kind).name; }

Json ownState(const Control& control) { return kindOf(control.kind()).state(control); }

Json controlState(const Control& control) {
  Json state{{"kind", kindName(control.kind())},
             {"visible", control.visible()},
             {"enabled", control.enabled()}};
  if (control.visible() && control.place()) {
    const Place& place = *control.place();
    state.update(
        Json{{"x", place.x}, {"y", place.y}, {"width", place.width}, {"height", place.height}});
  }
  state.update(ownState(control));
  return state;
}

}  // namespace awizo::protocol
