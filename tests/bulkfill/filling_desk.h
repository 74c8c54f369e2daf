#pragma once

#include <string>
#include <vector>

#include "bulkfill/bulk_fill.h"
#include "bulkfill/country_picker.h"
#include "session/record/countries.h"
#include "support/documents.h"
#include "support/test_editor.h"

namespace awizo::test {

/// The main form with the buttons that fill whole columns, and the dialogs that these use.
struct FillingDesk : TestEditor {
  DlgIsoCodes isoCodes{screen, session};
  DlgdodajPule quantityDialog{screen, editor.conversions};
  DlgDodaj lineDialog{editor, isoCodes, quantityDialog};
  Table& lines = form.grdPozycje;

  FillingDesk() {
    form.comboStawkaVAT.setRows({"", "0", "10", "18"});
    form.comboCountry.setRows(fixedCountryEntries());
    lineDialog.allowLoading();
    form.btnUzupelnij.onClick = [this] { btnUzupelnij_Click(editor); };
    form.btnNadpisz.onClick = [this] { btnNadpisz_Click(editor); };
    form.btnUzupelnij2.onClick = [this] { btnUzupelnij2_Click(editor, isoCodes, lineDialog); };
    form.btnNadpisz2.onClick = [this] { btnNadpisz2_Click(editor, isoCodes, lineDialog); };
    form.Image2.onClick = [this] { Image2_Click(editor, isoCodes, lineDialog); };
  }

  std::vector<std::string> takeBoxes() { return describe(face.takeBoxes()); }
};

}  // namespace awizo::test
