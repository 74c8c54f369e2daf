#include "bulkfill/bulk_fill.h"

#include "formats/row_check.h"
#include "platform/forms/boxes.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "platform/text.h"
#include "session/record/countries.h"
#include "tables/columns/columns.h"
#include "tables/row.h"
#include "tables/upper/editing/country_lists.h"

namespace awizo {
namespace {

bool isBlank(std::string_view cell) { return cell.empty() || cell == "-1"; }

/// Runs `fill` for every line whose cell is to be written, and says how many they were.
template <class Fill>
void forLinesToFill(Editor& editor, int column, bool overwrite, Fill fill) {
  Deed deed{Deed::Kind::filled};
  for (int row = 1; row <= editor.session.LineCount; ++row) {
    const Row line = lineRow(editor, row);
    if (!overwrite && !isBlank(line.cell(column))) continue;
    fill(line);
    ++deed.lines;
  }
  editor.form.deeds.tell(deed);
}

/// "(PL)Польша" of a two-letter code; the bare code where the table doesn't know it.
std::string listRow(DlgIsoCodes& isoCodes, const std::string& code) {
  const std::optional<int> index =
      isoCodes.findCode([&](const std::string& cell) { return cell == code; });
  return index ? countryEntry(code, isoCodes.grdISO.cell(*index - 1)) : code;
}

void fillCountry(Editor& editor, DlgIsoCodes& isoCodes, DlgDodaj& lineDialog, bool overwrite) {
  DropDownList& countries = editor.form.comboCountry;
  std::string country = countries.text();
  CheckIsoCountry(editor.session, isoCodes, editor.platform.locale, country);
  if (!editor.session.IsoCheckOk) {
    editor.screen().showExclamation("The value of ISO code is not allowed", "VIRD");
    return;
  }
  countries.setText(editor.session.IsoCheckCode);
  FillLines2(editor, overwrite);
  if (countCharacters(countries.text()) != 2) return;
  addCountry(editor, lineDialog, listRow(isoCodes, countries.text()));
}

}  // namespace

void FillLines(Editor& editor, bool overwrite) {
  if (editor.session.LineCount == 0) return;
  reportErrors(editor.screen(), "Ошибка в FillLines()", [&] {
    if (!isConfirmed(editor.screen(),
                     overwrite
                         ? "Вы уверены, что хотите заполнить все поля для НДС выбранной ставкой?\r"
                           "В этом случае текущие значения будут изменены."
                         : "Пустые поля для НДС будут заполнены.")) {
      return;
    }
    const std::string rate = editor.form.comboStawkaVAT.text();
    forLinesToFill(editor, GRD_POZ_TAX_RATE, overwrite, [&](const Row& line) {
      line.set(GRD_POZ_TAX_RATE, rate);
      line.set(GRD_POZ_TAX_CATEGORY, rate.empty() ? "" : "S");
    });
    CountValidRows(editor);
  });
}

void FillLines2(Editor& editor, bool overwrite) {
  if (editor.session.LineCount == 0) return;
  reportErrors(editor.screen(), "Ошибка в FillLines2()", [&] {
    if (!isConfirmed(editor.screen(),
                     overwrite ? "Вы уверены, что хотите заполнить все поля для 'Код страны "
                                 "производителя'?\r"
                                 "В этом случае текущие значения будут изменены."
                               : "Пустые поля для 'Код страны производителя' будут заполнены.")) {
      return;
    }
    const DropDownList& countries = editor.form.comboCountry;
    const std::string country = symbolKraj(narrow16(countries.index()), countries.text());
    forLinesToFill(editor, GRD_POZ_COUNTRY, overwrite,
                   [&](const Row& line) { line.set(GRD_POZ_COUNTRY, country); });
  });
}

void btnUzupelnij_Click(Editor& editor) { FillLines(editor, false); }

void btnNadpisz_Click(Editor& editor) { FillLines(editor, true); }

void btnUzupelnij2_Click(Editor& editor, DlgIsoCodes& isoCodes, DlgDodaj& lineDialog) {
  fillCountry(editor, isoCodes, lineDialog, false);
}

void btnNadpisz2_Click(Editor& editor, DlgIsoCodes& isoCodes, DlgDodaj& lineDialog) {
  fillCountry(editor, isoCodes, lineDialog, true);
}

}  // namespace awizo
