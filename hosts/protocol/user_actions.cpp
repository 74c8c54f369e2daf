#include "hosts/protocol/user_actions.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "hosts/common/value_texts.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"

namespace awizo::protocol {

namespace {

/// The control as that model, or null.
template <class Model>
Model* as(Control& control) {
  return dynamic_cast<Model*>(&control);
}

[[noreturn]] void wrongKind(const Control& control, std::string_view action) {
  throw BadLine("\"" + control.name() + "\" is nothing for the action \"" + std::string(action) +
                "\".");
}

std::int16_t keyCode(const Json& line) {
  const int code = integerMember(line, "code");
  if (code < 0 || code > std::numeric_limits<std::int16_t>::max()) {
    throw BadLine("There is no such key.");
  }
  return static_cast<std::int16_t>(code);
}

/// The member read by `parse`; null counts as missing.
template <class Value>
std::optional<Value> valueMember(const Json& line, std::optional<Value> (*parse)(std::string_view),
                                 std::string_view form) {
  const Json& value = member(line, "value");
  if (value.is_null()) return std::nullopt;
  const std::optional<Value> read = parse(textOf(value, "value"));
  if (!read) throw BadLine("\"value\" must have the form " + std::string(form) + ".");
  return read;
}

void click(Control& control, const Json&) {
  if (auto* button = as<Button>(control)) return button->userClick();
  wrongKind(control, "click");
}

void doubleClick(Control& control, const Json&) {
  if (auto* button = as<Button>(control)) return button->userDoubleClick();
  if (auto* table = as<Table>(control)) return table->userDoubleClick();
  if (auto* list = as<FileList>(control)) return list->userDoubleClick();
  wrongKind(control, "doubleClick");
}

void type(Control& control, const Json& line) {
  const std::string text = textMember(line, "text");
  if (auto* field = as<TextField>(control)) return field->userType(text);
  if (auto* list = as<DropDownList>(control)) return list->userType(text);
  wrongKind(control, "type");
}

/// The drive at a row of its list.
void chooseDrive(DriveList& list, int row) {
  const std::vector<std::string> drives = list.rows();
  if (row < 0 || row >= static_cast<int>(drives.size())) throw Refused("There is no such drive.");
  list.userChoose(drives[static_cast<std::size_t>(row)]);
}

void choose(Control& control, const Json& line) {
  const int row = integerMember(line, "row");
  if (auto* list = as<DriveList>(control)) return chooseDrive(*list, row);
  if (auto* list = as<DropDownList>(control)) return list->userChoose(row);
  if (auto* list = as<FileList>(control)) return list->userChoose(row);
  wrongKind(control, "choose");
}

void setDate(Control& control, const Json& line) {
  const auto date = valueMember<Date>(line, parseDate, "yyyy-mm-dd");
  if (auto* picker = as<DatePicker>(control)) return picker->userSet(date);
  wrongKind(control, "date");
}

void setTime(Control& control, const Json& line) {
  const auto time = valueMember<TimeOfDay>(line, parseTime, "hh:mm");
  if (auto* picker = as<TimePicker>(control)) return picker->userSet(time);
  wrongKind(control, "time");
}

void clickCell(Control& control, const Json& line) {
  const int row = integerMember(line, "row");
  const int column = integerMember(line, "col");
  if (auto* table = as<Table>(control)) return table->userCell(row, column);
  wrongKind(control, "cell");
}

void pressKey(Control& control, const Json& line) {
  const std::int16_t code = keyCode(line);
  const bool shift = booleanMember(line, "shift", false);
  control.userKey(code, shift);
}

void moveFocus(Control& control, const Json&) { control.userFocus(); }

void select(Control& control, const Json& line) {
  const int row = integerMember(line, "row");
  const int column = integerMember(line, "col");
  const int rowSel = integerMember(line, "rowSel");
  const int columnSel = integerMember(line, "colSel");
  if (auto* table = as<Table>(control)) return table->userSelect(row, column, rowSel, columnSel);
  wrongKind(control, "select");
}

void spin(Control& control, const Json& line) {
  const int by = integerMember(line, "by");
  if (auto* buttons = as<SpinButtons>(control)) return buttons->userSpin(by);
  wrongKind(control, "spin");
}

void scroll(Control& control, const Json& line) {
  const int top = integerMember(line, "top");
  if (auto* table = as<Table>(control)) return table->userScroll(top);
  wrongKind(control, "scroll");
}

void openPath(Control& control, const Json& line) {
  const std::string path = textMember(line, "value");
  if (auto* folders = as<FolderList>(control)) return folders->userOpen(path);
  if (auto* drives = as<DriveList>(control)) return drives->userChoose(path);
  wrongKind(control, "path");
}

struct Action {
  std::string_view name;
  void (*perform)(Control& control, const Json& line);
};

constexpr std::array actions{
    Action{"click", click},     Action{"doubleClick", doubleClick},
    Action{"type", type},       Action{"choose", choose},
    Action{"date", setDate},    Action{"time", setTime},
    Action{"cell", clickCell},  Action{"key", pressKey},
    Action{"focus", moveFocus}, Action{"select", select},
    Action{"spin", spin},       Action{"scroll", scroll},
    Action{"path", openPath},
};

}  // namespace

bool UserActions::knows(std::string_view action) {
  return action == "close" || std::ranges::find(actions, action, &Action::name) != actions.end();
}

void UserActions::perform(std::string_view action, const Json& line) const {
  const std::string on = textMember(line, "on");
  if (action == "close") return forms_.form(on).userClose();
  Control& control = forms_.control(on);
  const auto found = std::ranges::find(actions, action, &Action::name);
  if (found != actions.end()) found->perform(control, line);
}

}  // namespace awizo::protocol
