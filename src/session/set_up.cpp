#include "session/set_up.h"

#include <new>

#include "tables/set_up_tables.h"

namespace awizo {
namespace {

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

std::string versionText(const ProgramVersion& version) {
  return "VIRDDesAdv " + std::to_string(version.major) + "." + std::to_string(version.minor) +
         ".0." + std::to_string(version.revision);
}

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
