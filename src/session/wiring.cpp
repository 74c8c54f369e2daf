#include "bulkfill/bulk_fill.h"
#include "bulkfill/country_picker.h"
#include "formats/saving.h"
#include "formats/upper/reading/despatch_advice_reader.h"
#include "service/upper/sending/sending.h"
#include "session/awizo_wysylki.h"
#include "tables/upper/editing/in_table_editing.h"
#include "tables/upper/editing/line_commit.h"
#include "tables/upper/editing/package_commit.h"
#include "tables/upper/editing/removal.h"

namespace awizo {

void AwizoWysylki::connectEvents() {
  connectLineButtons();
  connectPackageButtons();
  connectDocumentButtons();
  connectTables();
  connectTableEditor();
}

void AwizoWysylki::connectLineButtons() {
  form.btnDodaj.onClick = [this] { btnDodaj_Click(editor, dlgDodaj); };
  form.btnEdytuj.onClick = [this] { btnEdytuj_Click(editor, dlgDodaj); };
  form.btnUsun.onClick = [this] { btnUsun_Click(editor); };
  form.btnUzupelnij.onClick = [this] { btnUzupelnij_Click(editor); };
  form.btnNadpisz.onClick = [this] { btnNadpisz_Click(editor); };
  form.btnUzupelnij2.onClick = [this] { btnUzupelnij2_Click(editor, dlgIsoCodes, dlgDodaj); };
  form.btnNadpisz2.onClick = [this] { btnNadpisz2_Click(editor, dlgIsoCodes, dlgDodaj); };
  form.Image2.onClick = [this] { Image2_Click(editor, dlgIsoCodes, dlgDodaj); };
}

void AwizoWysylki::connectPackageButtons() {
  form.btnDodajOpak.onClick = [this] { btnDodajOpak_Click(editor, dlgSzczegoly); };
  form.btnEdytujOpak.onClick = [this] { btnEdytujOpak_Click(editor, dlgSzczegoly); };
  form.btnUsunOpak.onClick = [this] { btnUsunOpak_Click(editor); };
}

void AwizoWysylki::connectDocumentButtons() {
  form.btnPrzeslij.onClick = [this] { btnPrzeslij_Click(editor); };
  form.btnZapisz.onClick = [this] { btnZapisz_Click(editor, dlgWczytajZapisz); };
  form.btnWczytaj.onClick = [this] { btnWczytaj_Click(editor, dlgWczytajZapisz); };
}

void AwizoWysylki::connectTables() {
  const auto editLine = [this] { btnEdytuj_Click(editor, dlgDodaj); };
  Table& lines = form.grdPozycje;
  lines.onDoubleClick = [this, editLine] { grdPozycje_DblClick(editor, editLine); };
  lines.onKeyPress = [this, editLine](std::int16_t& code) {
    grdPozycje_KeyPress(editor, code, editLine);
  };
  lines.onGotFocus = [this] { grdPozycje_GotFocus(editor); };
  lines.onLeaveCell = [this] { grdPozycje_LeaveCell(editor); };
  lines.onScroll = [this] { grdPozycje_Scroll(editor); };
  form.grdOpakowania.onLeaveCell = [this] { grdOpakowania_LeaveCell(editor); };
  form.grdSuma.onLeaveCell = [this] { grdSuma_LeaveCell(editor); };
}

void AwizoWysylki::connectTableEditor() {
  form.txtEdycja.onKeyDown = [this](std::int16_t code, bool shift) {
    txtEdycja_KeyDown(editor, code, shift);
  };
  form.txtEdycja.onKeyPress = [](std::int16_t& code) { txtEdycja_KeyPress(code); };
  form.txtEdycja.onLostFocus = [this] { txtEdycja_LostFocus(editor); };
  form.txtEdycja.onValidate = [this] { txtEdycja_Validate(editor); };
}

}  // namespace awizo
