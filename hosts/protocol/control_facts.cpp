#include "hosts/protocol/control_facts.h"

#include "hosts/protocol/control_state.h"
#include "hosts/protocol/table_state.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/pickers.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"

namespace awizo::protocol {

namespace {

const char* styleName(ListStyle style) {
  switch (style) {
    case ListStyle::freeTyping:
      return "freeTyping";
    case ListStyle::listOnly:
      return "listOnly";
    case ListStyle::matchRequired:
      break;
  }
  return "matchRequired";
}

Json listFacts(const DropDownList& list) {
  return {{"caption", list.caption()},
          {"text", list.text()},
          {"index", list.index()},
          {"style", styleName(list.style())},
          {"count", list.count()}};
}

Json tableFacts(const Table& table) {
  Json widths = Json::array();
  for (int column = 0; column < table.columns(); ++column) {
    widths.push_back(table.columnWidth(column));
  }
  return {{"count", table.rows()},       {"fixed", table.fixedRows()},
          {"cols", table.columns()},     {"row", table.row()},
          {"col", table.column()},       {"rowSel", table.rowSel()},
          {"colSel", table.columnSel()}, {"selectsRows", table.selectsRows},
          {"widths", std::move(widths)}, {"top", table.topRow()},
          {"redraw", table.redraw()}};
}

/// What its kind has.
Json ownFacts(const Control& control) {
  switch (control.kind()) {
    case ControlKind::dropDownList:
      return listFacts(static_cast<const DropDownList&>(control));
    case ControlKind::table:
      return tableFacts(static_cast<const Table&>(control));
    case ControlKind::textField: {
      const auto& field = static_cast<const TextField&>(control);
      Json facts = ownState(control);
      facts["alignment"] = alignmentName(field.alignment());
      facts["tag"] = field.tag;
      return facts;
    }
    case ControlKind::datePicker: {
      const auto& picker = static_cast<const DatePicker&>(control);
      Json facts = ownState(control);
      facts["allowsNone"] = picker.allowsNone();
      facts["long"] = picker.shownForm() == DateForm::longDate;
      return facts;
    }
    default:
      return ownState(control);
  }
}

Json placeFacts(const Control& control) {
  if (!control.place()) return nullptr;
  const Place& place = *control.place();
  return {{"x", place.x}, {"y", place.y}, {"width", place.width}, {"height", place.height}};
}

Json tableRow(const Table& table, int row) {
  Json cells = Json::array();
  Json looks = Json::array();
  for (int column = 0; column < table.columns(); ++column) {
    cells.push_back(table.cell(row, column));
    const CellLook& look = table.look(row, column);
    if (look == CellLook{}) continue;
    looks.push_back({{"col", column},
                     {"colour", colourText(look.background)},
                     {"alignment", alignmentName(look.alignment)},
                     {"bold", look.bold},
                     {"wrap", look.wrap}});
  }
  Json facts{{"row", row}, {"height", table.rowHeight(row)}, {"cells", std::move(cells)}};
  if (!looks.empty()) facts["looks"] = std::move(looks);
  return facts;
}

}  // namespace

Json controlFacts(const Control& control) {
  Json facts{{"kind", kindName(control.kind())},
             {"visible", control.visible()},
             {"enabled", control.enabled()},
             {"cover", control.cover == nullptr ? Json(nullptr) : Json(control.cover->name())},
             {"place", placeFacts(control)}};
  facts.update(ownFacts(control));
  return facts;
}

int rowCount(const Control& control) {
  if (control.kind() == ControlKind::table) return static_cast<const Table&>(control).rows();
  if (control.kind() != ControlKind::dropDownList) return 0;
  return static_cast<const DropDownList&>(control).count();
}

int fixedRowCount(const Control& control) {
  if (control.kind() != ControlKind::table) return 0;
  return static_cast<const Table&>(control).fixedRows();
}

Json rowFacts(const Control& control, int row) {
  if (control.kind() == ControlKind::table) {
    return tableRow(static_cast<const Table&>(control), row);
  }
  const auto& list = static_cast<const DropDownList&>(control);
  return {{"row", row}, {"text", list.rows()[static_cast<std::size_t>(row)]}};
}

}  // namespace awizo::protocol
