#include "tables/upper/editing/in_table_editing.h"

#include "formats/row_check.h"
#include "platform/forms/keys.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "platform/text.h"
#include "tables/columns/columns.h"
#include "tables/row.h"
#include "tables/totals.h"

namespace awizo {
namespace {

void placeOverCell(Table& grid, TextField& edit) {
  const Place table = grid.place().value_or(Place{});
  const int left = grid.cellLeft();
  const int top = grid.cellTop();
  edit.move({table.x + left, table.y + top, grid.cellWidth() - 4, grid.cellHeight() - 4});
}

/// A valid text keeps the field visible, so that the table's focus event takes it into the cell;
/// an invalid one hides it, and the cell keeps its value.
void commit(Editor& editor, Table& grid, TextField& edit) {
  edit.setText(ClampQuantity(editor, edit.text()));
  edit.setVisible(CheckNumber(editor, edit.text()));
  grid.setFocus();
}

void moveDown(Table& grid) {
  if (grid.row() < grid.rows() - 1) grid.setRow(grid.row() + 1);
}

void tidyQuantity(Editor& editor) {
  TextField& edit = editor.form.txtEdycja;
  edit.setText(ClampQuantity(editor, edit.text()));
  edit.setText(editor.conversions.NormalizeDecimal(edit.text(), 3));
}

}  // namespace

void EditGridCell(Table& grid, TextField& edit, std::int16_t key) {
  if (key < 0 || key > 32) {
    edit.setText(characterText(static_cast<char32_t>(static_cast<std::uint16_t>(key))));
    edit.setCaret(1);
  } else {
    edit.setText(grid.text());
    edit.setCaret(1000);
  }
  placeOverCell(grid, edit);
  edit.setVisible(true);
  edit.setFocus();
}

void EditKeyCode(Editor& editor, Table& grid, TextField& edit, std::int16_t KeyCode, bool) {
  reportErrors(editor.screen(), "Произошла ошибка в EditKeyCode()", [&] {
    switch (KeyCode) {
      case keys::enter:
        commit(editor, grid, edit);
        moveDown(grid);
        break;
      case keys::escape:
        edit.setVisible(false);
        grid.setFocus();
        PoprawGrdSuma(editor);
        break;
      case keys::up:
        commit(editor, grid, edit);
        editor.screen().letEventsRun();
        if (grid.row() > grid.fixedRows()) grid.setRow(grid.row() - 1);
        break;
      case keys::down:
        commit(editor, grid, edit);
        editor.screen().letEventsRun();
        moveDown(grid);
        break;
      default:
        break;
    }
  });
}

std::string ClampQuantity(Editor& editor, std::string_view text) {
  const Conversions& conversions = editor.conversions;
  std::string quantity = conversions.NormalizeDecimal(text, 3);
  if (!conversions.isNumeric(quantity)) return conversions.NormalizeDecimal("", 3);
  if (conversions.toDouble(quantity) < 0) quantity = "0";
  const std::string& ordered = lineRow(editor, editor.session.EditRow).cell(GRD_POZ_QTY_ORDERED);
  double limit = conversions.isNumeric(ordered) ? conversions.toDouble(ordered) : 0;
  if (limit < 0) limit = 0;
  if (conversions.toDouble(quantity) > limit) quantity = conversions.plainNumber(limit);
  return conversions.NormalizeDecimal(quantity, 3);
}

bool CheckNumber(Work& work, std::string_view text) {
  if (work.conversions.isNumeric(text)) return true;
  work.screen().showExclamation("Неправильная нумерическая величина.", "VIRD");
  return false;
}

void grdPozycje_LeaveCell(Editor& editor) {
  TextField& edit = editor.form.txtEdycja;
  if (!edit.visible()) return;
  editor.form.grdPozycje.setText(edit.text());
  edit.setVisible(false);
  RepaintValidRows(editor);
  CountValidRows(editor);
}

void grdSuma_LeaveCell(Editor& editor) {
  TextField& edit = editor.form.txtEdycjaSuma;
  if (!edit.visible()) return;
  editor.form.grdSuma.setText(edit.text());
  edit.setVisible(false);
}

/// The packages have no in-table editing.
void grdOpakowania_LeaveCell(Editor&) {}

void closeOpenEdits(Editor& editor) {
  grdOpakowania_LeaveCell(editor);
  grdPozycje_LeaveCell(editor);
  grdSuma_LeaveCell(editor);
}

void grdPozycje_GotFocus(Editor& editor) {
  grdSuma_LeaveCell(editor);
  grdPozycje_LeaveCell(editor);
}

void grdPozycje_Scroll(Editor& editor) {
  if (editor.form.txtEdycja.visible()) {
    placeOverCell(editor.form.grdPozycje, editor.form.txtEdycja);
  }
}

void grdPozycje_DblClick(Editor& editor, const std::function<void()>& editLine) {
  if (editor.session.LineCount <= 0) return;
  Table& grid = editor.form.grdPozycje;
  const int normalHeight = editor.form.GridRowHeight;
  switch (grid.column()) {
    case GRD_POZ_EAN:
      editLine();
      break;
    case GRD_POZ_NAME:
      grid.setRowHeight(grid.row(), grid.rowHeight(grid.row()) < 2 * normalHeight ? 2 * normalHeight
                                                                                  : normalHeight);
      break;
    case GRD_POZ_QTY_DESPATCHED:
      editor.session.EditRow = narrow16(grid.row());
      EditGridCell(grid, editor.form.txtEdycja, keys::blank);
      break;
    default:
      break;
  }
}

void grdPozycje_KeyPress(Editor& editor, std::int16_t keyAscii,
                         const std::function<void()>& editLine) {
  if (keyAscii == keys::enter) grdPozycje_DblClick(editor, editLine);
}

void txtEdycja_KeyDown(Editor& editor, std::int16_t KeyCode, bool Shift) {
  EditKeyCode(editor, editor.form.grdPozycje, editor.form.txtEdycja, KeyCode, Shift);
}

/// Enter would beep in a one-line field.
void txtEdycja_KeyPress(std::int16_t& keyAscii) {
  if (keyAscii == keys::enter) keyAscii = 0;
}

void txtEdycja_LostFocus(Editor& editor) { tidyQuantity(editor); }

/// The focus always moves on; a text that is no number closes the field and leaves the cell alone.
void txtEdycja_Validate(Editor& editor) {
  tidyQuantity(editor);
  editor.form.txtEdycja.setVisible(CheckNumber(editor, editor.form.txtEdycja.text()));
}

}  // namespace awizo
