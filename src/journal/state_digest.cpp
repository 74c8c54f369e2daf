#include "journal/state_digest.h"

#include <concepts>
#include <string_view>
#include <vector>

#include "journal/checksum.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/label.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"

namespace awizo::journal {
namespace {

/// Sums values up in the order in which they are added.
class Digest {
 public:
  std::uint64_t value() const { return sum_; }

  template <class... Values>
  void add(const Values&... values) {
    (take(values), ...);
  }

 private:
  void take(std::string_view text) { sum_ = checksum(text, sum_); }
  void take(std::integral auto number) {
    sum_ = (sum_ ^ static_cast<std::uint64_t>(number)) * 0x9E3779B97F4A7C15U;
    sum_ ^= sum_ >> 29;
  }
  template <class Element>
  void take(const std::vector<Element>& elements) {
    take(elements.size());
    for (const Element& element : elements) take(element);
  }

  std::uint64_t sum_ = 0;
};

void addDate(Digest& digest, const Date& date) {
  digest.add(int(date.year()), unsigned(date.month()), unsigned(date.day()));
}

void addLook(Digest& digest, const CellLook& look) {
  digest.add(look.background.red, look.background.green, look.background.blue,
             static_cast<int>(look.alignment), look.bold, look.wrap);
}

void addTable(Digest& digest, const Table& table) {
  digest.add(table.rows(), table.columns(), table.fixedRows(), table.row(), table.column(),
             table.rowSel(), table.columnSel(), table.topRow(), table.redraw(), table.selectsRows);
  for (int column = 0; column < table.columns(); ++column) {
    digest.add(table.columnWidth(column), static_cast<int>(table.columnAlignment(column)));
  }
  for (int row = 0; row < table.rows(); ++row) {
    digest.add(table.rowHeight(row));
    for (int column = 0; column < table.columns(); ++column) {
      digest.add(table.cell(row, column));
      addLook(digest, table.look(row, column));
    }
  }
}

template <class Model>
const Model& as(const Control& control) {
  return static_cast<const Model&>(control);
}

void addPicker(Digest& digest, const DatePicker& picker) {
  digest.add(picker.date().has_value());
  if (picker.date()) addDate(digest, *picker.date());
  addDate(digest, picker.lastDate());
}

void addPicker(Digest& digest, const TimePicker& picker) {
  digest.add(picker.time().has_value());
  if (const auto& time = picker.time()) digest.add(time->hour, time->minute, time->second);
}

/// What its kind has.
void addOwn(Digest& digest, const Control& control) {
  switch (control.kind()) {
    case ControlKind::label:
      return digest.add(as<Label>(control).caption());
    case ControlKind::textField: {
      const auto& field = as<TextField>(control);
      return digest.add(field.text(), field.limit(), field.caret());
    }
    case ControlKind::button:
    case ControlKind::pictureButton:
      return digest.add(as<Button>(control).caption());
    case ControlKind::dropDownList: {
      const auto& list = as<DropDownList>(control);
      return digest.add(list.text(), list.index(), static_cast<int>(list.style()), list.rows());
    }
    case ControlKind::datePicker:
      return addPicker(digest, as<DatePicker>(control));
    case ControlKind::timePicker:
      return addPicker(digest, as<TimePicker>(control));
    case ControlKind::spinButtons: {
      const auto& buttons = as<SpinButtons>(control);
      return digest.add(buttons.min(), buttons.max());
    }
    case ControlKind::table:
      return addTable(digest, as<Table>(control));
    case ControlKind::driveList:
      return digest.add(as<DriveList>(control).drive());
    case ControlKind::folderList:
      return digest.add(as<FolderList>(control).path());
    case ControlKind::fileList: {
      const auto& list = as<FileList>(control);
      return digest.add(list.path(), list.rows(), list.index());
    }
    case ControlKind::frame:
      return digest.add(as<Frame>(control).caption());
  }
}

void addControl(Digest& digest, const Control& control) {
  digest.add(control.visible(), control.enabled(), control.place().has_value());
  if (const auto& place = control.place()) {
    digest.add(place->x, place->y, place->width, place->height);
  }
  addOwn(digest, control);
}

void addForm(Digest& digest, const Form& form) {
  digest.add(form.name(), form.caption(), form.enabled(), form.shown(),
             form.focus() == nullptr ? std::string() : form.focus()->name());
  for (const Control* control : form.controls()) addControl(digest, *control);
}

void addSession(Digest& digest, const SessionState& session) {
  digest.add(session.IsoCheckOk, session.IsoCheckCode, session.AllPacked, session.SendQuestionAsked,
             session.LineCount, session.LastFilePath, session.OffLinePathValue,
             session.DecimalSeparator);
  digest.add(session.LocalizationsLoaded, session.ProductCatalogLoaded, session.UserInfoLoaded,
             session.PartnerInfoLoaded, session.SellerILN, session.SellerNIP, session.SellerName,
             session.SellerAccount, session.BuyerILN, session.BuyerNIP, session.BuyerName,
             session.BuyerAccount);
  digest.add(static_cast<int>(session.WaitCursor), session.IloscPozycjiOpak, session.EditRow,
             session.ParentSerials, session.ParentDescriptions, session.ParentLevels,
             session.IsoResult);
}

void addMembers(Digest& digest, const AwizoForm& form) {
  digest.add(form.HeaderBuyerILN, form.HeaderBuyerName, form.HeaderSellerILN, form.HeaderSellerName,
             form.ValidLineCount, form.GridRowHeight, form.LastSentNumber, form.LastPackageSerial,
             form.OrderAnswer, form.DeliveryILN, form.BadColumnName, form.WeightComplete);
  digest.add(form.OnLine, form.DebugLevel, form.PartnerName, form.PartnerILN, form.PartnerURL);
}

void addMembers(Digest& digest, const AwizoWysylki& control) {
  addMembers(digest, control.form);
  const DlgDodaj& line = control.dlgDodaj;
  digest.add(line.DlgResult, line.LinePartnerName, line.LinePeriod, line.LinePeriodFormat,
             line.LineFromOrder, line.LineOrderNumber, line.LineWeight);
  const DlgSzczegoly& package = control.dlgSzczegoly;
  digest.add(package.DialogResult, package.ParentSerial, package.AddMode,
             package.LocalizationsFilled, control.dlgdodajPule.DlgResult,
             control.dlgIsoCodes.PickedIndex, control.dlgIsoCodes.ShiftHeld,
             control.dlgIsoCodes.MouseHeld, static_cast<int>(control.screen.cursor()));
}

}  // namespace

std::uint64_t stateDigest(AwizoWysylki& control) {
  Digest digest;
  for (const Form* form : control.forms()) addForm(digest, *form);
  addSession(digest, control.editor.session);
  addMembers(digest, control);
  return digest.value();
}

}  // namespace awizo::journal
