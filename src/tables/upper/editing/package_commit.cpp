#include "tables/upper/editing/package_commit.h"

#include "formats/row_check.h"
#include "linedialog/captions.h"
#include "packagedialog/package_types.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "tables/columns/columns.h"
#include "tables/row.h"
#include "tables/row_colour.h"
#include "tables/upper/editing/in_table_editing.h"
#include "tables/upper/editing/numbered_row.h"

namespace awizo {
namespace {

void prepareForNew(Editor& editor, DlgSzczegoly& dialog) {
  const std::int16_t last = editor.form.LastPackageSerial;
  dialog.ParentSerial.clear();
  dialog.lbIDValue.setCaption(std::to_string(narrow16(last + 1)));
  dialog.lblIDLowValue.setCaption(std::to_string(last));
  dialog.txtPackageDesc.setText("");
  dialog.txtPackageDesc.setEnabled(true);
  for (TextField* field :
       {&dialog.txtPackageWeight, &dialog.txtPackageHeight, &dialog.txtPackageWidth,
        &dialog.txtSerialNumberN, &dialog.txtPackageLength}) {
    field->setText("");
  }
  dialog.cboxPackageType.setIndex(0);
  dialog.cboxILNLokalizacji.clearSelection();
  dialog.cboxLokalizacja.clearSelection();
  dialog.cboxParentPackage.addRow("");
}

/// Each row with the parent's description is selected, one after another, so the last of equal ones
/// stays selected; the list's own event takes the parent's serial and level from it.
void selectParent(DlgSzczegoly& dialog, const std::string& description) {
  DropDownList& parents = dialog.cboxParentPackage;
  for (int i = 0; i < parents.count(); ++i) {
    if (parents.rows()[static_cast<std::size_t>(i)] == description) parents.setIndex(i);
  }
}

void fillForEdit(const Work& work, DlgSzczegoly& dialog, const Row& package) {
  dialog.ParentSerial = package.cell(GRD_OPAK_PARENT_SERIAL);
  selectParent(dialog, package.cell(GRD_OPAK_PARENT_DESC));
  dialog.lblLevelValue.setCaption(package.cell(GRD_OPAK_LEVEL));
  dialog.lbIDValue.setCaption(package.cell(GRD_OPAK_SERIAL));
  dialog.lblIDLowValue.setCaption(package.cell(GRD_OPAK_ID_LOW));
  dialog.txtPackageDesc.setText(package.cell(GRD_OPAK_DESC));
  dialog.txtPackageDesc.setEnabled(false);
  dialog.txtPackageWeight.setText(package.cell(GRD_OPAK_WEIGHT));
  dialog.txtPackageWidth.setText(package.cell(GRD_OPAK_WIDTH));
  dialog.txtPackageHeight.setText(package.cell(GRD_OPAK_HEIGHT));
  dialog.txtPackageLength.setText(package.cell(GRD_OPAK_LENGTH));
  dialog.cboxPackageType.setIndex(
      indexPackageType(work.platform.locale, package.cell(GRD_OPAK_TYPE)));
  dialog.txtSerialNumberN.setText(package.cell(GRD_OPAK_SERIAL_NUMBER));
  dialog.cboxILNLokalizacji.setText(package.cell(GRD_OPAK_LOCATION_ILN));
  dialog.cboxILNLokalizacji_Change_PublicWrapper();
}

}  // namespace

void PreparePackageArrays(Editor& editor, std::string_view) {
  SessionState& session = editor.session;
  const auto count = static_cast<std::size_t>(session.IloscPozycjiOpak);
  session.ParentSerials.assign(count + 1, "");
  session.ParentDescriptions.assign(count + 1, "");
  session.ParentLevels.assign(count + 1, 0);
  DebugLog& log = session.log;
  log.trace("btnDodajOpak_Click: IloscPozycjiOpak = ", session.IloscPozycjiOpak);
  for (std::size_t i = 0; i < count; ++i) {
    const Row package = packageRow(editor, static_cast<int>(i) + 1);
    session.ParentSerials[i] = package.cell(GRD_OPAK_SERIAL);
    session.ParentDescriptions[i] = package.cell(GRD_OPAK_DESC);
    const std::string& level = package.cell(GRD_OPAK_LEVEL);
    log.trace("btnDodajOpak_Click: i - 1 = ", i, ", level =  ", level);
    session.ParentLevels[i] = editor.conversions.toInt16(level);
  }
}

void btnDodajOpak_Click(Editor& editor, DlgSzczegoly& dialog) {
  reportErrors(editor.screen(), "Произошла ошибка в btnDodajOpak_Click()", [&] {
    closeOpenEdits(editor);
    editor.form.setEnabled(false);
    dialog.touch();
    dialog.AddMode = true;
    dialog.setCaption("Добавить упаковку");
    dialog.btnDodaj.setCaption("&Добавить");
    PreparePackageArrays(editor);
    dialog.PreparePackages(false);
    prepareForNew(editor, dialog);
    dialog.showModal();
    editor.form.setEnabled(true);
    Table& grid = editor.form.grdOpakowania;
    if (dialog.DialogResult == 1) {
      grid.setRedraw(false);
      const std::int16_t row = addNumberedRow(grid, editor.session.IloscPozycjiOpak);
      if (!ZatwierdzPozycjeOpak(editor, dialog, row, true)) return;
      grid.setRedraw(true);
    }
    grid.refresh();
  });
}

void btnEdytujOpak_Click(Editor& editor, DlgSzczegoly& dialog) {
  if (editor.session.IloscPozycjiOpak < 1) return;
  reportErrors(editor.screen(), "Произошла ошибка в btnEdytujOpak_Click()", [&] {
    Table& grid = editor.form.grdOpakowania;
    const std::int16_t row = narrow16(grid.row());
    closeOpenEdits(editor);
    editor.form.setEnabled(false);
    dialog.touch();
    dialog.AddMode = false;
    dialog.setCaption("Изменить упаковку");
    dialog.btnDodaj.setCaption(captions::confirm);
    PreparePackageArrays(editor);
    dialog.PreparePackages(true);
    fillForEdit(editor, dialog, packageRow(editor, row));
    PreparePackageArrays(editor);
    dialog.showModal();
    if (dialog.DialogResult == 1) {
      grid.setRedraw(false);
      if (!ZatwierdzPozycjeOpak(editor, dialog, row, false)) return;
      paintRow(grid, row, GRD_OPAK_SERIAL, white);
      grid.setRedraw(true);
    }
    editor.form.setEnabled(true);
  });
}

bool ZatwierdzPozycjeOpak(Editor& editor, DlgSzczegoly& dialog, std::int16_t row, bool isNew) {
  return reportErrors(editor.screen(), "Произошла ошибка в ZatwierdzPozycjeOpak()", [&] {
    const Row package = packageRow(editor, row);
    const auto measure = [&](const TextField& field) {
      return editor.conversions.FormatFixed(field.text(), 3);
    };
    const bool isTop = dialog.ParentSerial.empty();
    package.set(GRD_OPAK_PARENT_SERIAL, isTop ? "1" : dialog.ParentSerial);
    package.set(GRD_OPAK_PARENT_DESC, dialog.cboxParentPackage.text());
    package.set(GRD_OPAK_LEVEL, isTop ? "1" : dialog.lblLevelValue.caption());
    package.set(GRD_OPAK_SERIAL, dialog.lbIDValue.caption());
    if (isNew) {
      editor.form.LastPackageSerial = narrow16(editor.form.LastPackageSerial + 1);
    }
    package.set(GRD_OPAK_ID_LOW, dialog.lblIDLowValue.caption());
    package.set(GRD_OPAK_DESC, dialog.txtPackageDesc.text());
    package.set(GRD_OPAK_WEIGHT, measure(dialog.txtPackageWeight));
    package.set(GRD_OPAK_WIDTH, measure(dialog.txtPackageWidth));
    package.set(GRD_OPAK_HEIGHT, measure(dialog.txtPackageHeight));
    package.set(GRD_OPAK_TYPE, symbolPackageType(narrow16(dialog.cboxPackageType.index())));
    package.set(GRD_OPAK_SERIAL_NUMBER, dialog.txtSerialNumberN.text());
    package.set(GRD_OPAK_LOCATION_ILN, dialog.cboxILNLokalizacji.text());
    package.set(GRD_OPAK_LENGTH, measure(dialog.txtPackageLength));
    editor.form.grdOpakowania.setRow(row);
    CountValidRows(editor);
  });
}

}  // namespace awizo
