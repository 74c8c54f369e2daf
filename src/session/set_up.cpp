#include "session/set_up.h"

#include <initializer_list>
#include <map>
#include <new>

#include "session/record/header_panel.h"

namespace awizo {
namespace {

/// Gives the named columns a width in twips and hides all others.
void setWidths(Table& table, const std::map<int, int>& widths) {
  for (int column = 0; column < table.columns(); ++column) {
    const auto shown = widths.find(column);
    table.setColumnWidth(column, shown == widths.end() ? 0 : shown->second);
  }
}

void centre(Table& table, std::initializer_list<int> columns) {
  for (const int column : columns) table.setColumnAlignment(column, Alignment::centre);
}

void setUpTables(AwizoForm& form) {
  setWidths(form.grdOpakowania, {{0, 525}, {2, 1150}, {3, 4605}, {4, 950}});
  centre(form.grdOpakowania, {13, 4, 2});
  setWidths(form.grdPozycje, {{0, 525}, {1, 1850}, {2, 4625}, {4, 2200}, {21, 1900}});
  centre(form.grdPozycje, {1, 2});
  setWidths(form.grdSuma, {{0, 1800}, {1, 3300}, {2, 0}});
  centre(form.grdSuma, {0, 1, 2});
}

std::string versionText(const ProgramVersion& version) {
  return "VIRDDesAdv " + std::to_string(version.major) + "." + std::to_string(version.minor) +
         ".0." + std::to_string(version.revision);
}

void setUp(Editor& editor) {
  AwizoForm& form = editor.form;
  editor.session.WaitCursor = Cursor::wait;
  form.cboxPackageDescription.clear();
  for (const char* row :
       {"Возвратная тара(EAN код)", "Тара ISO 1 - 1/1 Евро Тара (EAN код)", "Упаковка"}) {
    form.cboxPackageDescription.addRow(row);
  }
  setUpTables(form);
  UstawNaglowki(editor);
  form.GridRowHeight = form.grdPozycje.rowHeight(1);
  form.txtEdycja.setText("");
  editor.session.DecimalSeparator = editor.conversions.GetDecimalSeparator();
  form.lblVersion.setCaption(versionText(editor.platform.version));
}

void endAfter(Screen& screen, const RunTimeError& error) {
  screen.showCritical(
      error.description() + "\rУверьтесь, что все необходимые компоненты заинсталированы.",
      "Bі№d w UserControl_Initialize()");
  screen.endProgram();
}

}  // namespace

void setUpControl(Editor& editor) {
  try {
    setUp(editor);
  } catch (const RunTimeError& error) {
    endAfter(editor.screen(), error);
  } catch (const std::bad_alloc&) {
    endAfter(editor.screen(), errors::outOfMemory());
  }
}

}  // namespace awizo
