#include "linedialog/dlg_iso_codes.h"

#include <array>

#include "linedialog/iso_countries.h"
#include "platform/forms/keys.h"
#include "platform/narrow.h"
#include "platform/text.h"
#include "session/record/countries.h"
#include "tables/columns/column.h"

namespace awizo {
namespace {

constexpr int nameColumn = 0;
constexpr int codeColumn = 1;
constexpr std::array countryColumns{
    Column{nameColumn, "Название", 3000},
    Column{codeColumn, "код ISO", Table::normalColumnWidth, Alignment::centre},
};
static_assert(areInOrder(countryColumns));

/// Flat indexes of the codes of the list's countries.
constexpr int columnCount = static_cast<int>(countryColumns.size());
constexpr int firstCode = columnCount + codeColumn;

int rowCount() { return static_cast<int>(isoCountries().size()) + 1; }

}  // namespace

DlgIsoCodes::DlgIsoCodes(Screen& screen, SessionState& session)
    : Form(screen, "DlgIsoCodes"),
      grdISO(*this, "grdISO", columnCount, rowCount()),
      btnAccept(*this, "btnAccept", "&Добавить"),
      btnCancel(*this, "btnCancel", "&Назад"),
      session_(session) {
  setCaption("ISO коды стран.");
  acceptButton = &btnAccept;
  closeButton = &btnCancel;
  onClose = [this] { btnCancel_Click(); };
  btnAccept.onClick = [this] { btnAccept_Click(); };
  btnCancel.onClick = [this] { btnCancel_Click(); };
  grdISO.onKeyDown = [this](std::int16_t code, bool shift) {
    if (shift || code == keys::shift) hold(ShiftHeld);
  };
  grdISO.onKeyUp = [this](std::int16_t, bool) { release(ShiftHeld); };
  grdISO.onMouseDown = [this] { hold(MouseHeld); };
  grdISO.onMouseUp = [this] { release(MouseHeld); };
  grdISO.onSelectionChange = [this] { keepOneRow(); };
}

DlgIsoCodes& DlgIsoCodes::touch() {
  if (!loaded_) {
    loaded_ = true;
    Form_Load();
  }
  return *this;
}

void DlgIsoCodes::Form_Load() {
  session_.IsoResult.clear();
  grdISO.selectsRows = true;
  setUpColumns(grdISO, countryColumns);
  for (const Column& column : countryColumns) {
    grdISO.setCell(0, column.number, column.heading);
    CellLook look = grdISO.look(0, column.number);
    look.bold = true;
    grdISO.setLook(0, column.number, look);
  }
  int row = 0;
  for (const IsoCountry& country : isoCountries()) {
    grdISO.setCell(++row, nameColumn, country.name);
    grdISO.setCell(row, codeColumn, country.code);
  }
}

std::optional<int> DlgIsoCodes::findCode(
    const std::function<bool(const std::string& code)>& matches) {
  touch();
  for (int index = firstCode; index < columnCount * grdISO.rows(); index += columnCount) {
    if (matches(grdISO.cell(index))) return index;
  }
  return std::nullopt;
}

void DlgIsoCodes::btnAccept_Click() {
  session_.IsoResult.clear();
  PickedIndex = narrow16(grdISO.row() * columnCount + codeColumn);
  const std::string code = replaceAll(grdISO.cell(PickedIndex), " ", "");
  session_.IsoResult = countryEntry(code, grdISO.cell(PickedIndex - 1));
  hide();
}

void DlgIsoCodes::btnCancel_Click() { hide(); }

void DlgIsoCodes::hold(bool& mark) {
  grdISO.setRedraw(false);
  mark = true;
}

void DlgIsoCodes::release(bool& mark) {
  grdISO.setRedraw(true);
  mark = false;
}

/// A range marked over several rows falls back to the whole of the current one.
void DlgIsoCodes::keepOneRow() {
  if (!ShiftHeld && !MouseHeld) return;
  grdISO.setColumn(0);
  grdISO.setRowSel(grdISO.row());
  grdISO.setColumnSel(grdISO.columns() - 1);
}

void CheckIsoCountry(SessionState& session, DlgIsoCodes& dialog, const Locale& locale,
                     std::string& text) {
  session.IsoCheckOk = false;
  text = locale.upper(text);
  if (text.empty()) {
    session.IsoCheckOk = true;
    session.IsoCheckCode.clear();
    return;
  }
  std::string code(text);
  if (countCharacters(text) > 2) {
    code = firstCharacters(text, 4);
    if (countCharacters(code) == 4) code = replaceAll(replaceAll(code, "(", ""), ")", "");
  }
  if (countCharacters(code) != 2) return;
  const auto isCode = [&](const std::string& cell) { return replaceAll(cell, " ", "") == code; };
  if (!dialog.findCode(isCode)) return;
  session.IsoCheckOk = true;
  session.IsoCheckCode = code;
}

KeptPart DlgIsoCodes::keep(const KeptPart& earlier) const {
  return keptOf(earlier, members(*this));
}

void DlgIsoCodes::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
