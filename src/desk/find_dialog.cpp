#include "desk/find_dialog.h"

#include "desk/layout_words.h"
#include "desk/line_search.h"
#include "desk/scan_marks.h"
#include "platform/text.h"

namespace awizo {

FindDialog::FindDialog(Screen& screen, const Editor& editor)
    : Form(screen, "FindDialog"),
      txtWhat(*this, "txtWhat"),
      lblNothing(*this, "lblNothing"),
      btnFind(*this, "btnFind", "&Найти"),
      btnClose(*this, "btnClose", "&Закрыть"),
      editor_(editor) {
  setCaption("Найти строку");
  onActivate = [this] { txtWhat.setFocus(); };
  acceptButton = &btnFind;
  closeButton = &btnClose;
  txtWhat.onChange = [this] { lblNothing.setCaption(""); };
  btnFind.onClick = [this] { btnFind_Click(); };
  btnClose.onClick = [this] { hide(); };
}

std::optional<FoundRow> FindDialog::ask() {
  found_.reset();
  lblNothing.setCaption("");
  showModal();
  return found_;
}

std::optional<FoundRow> FindDialog::again() const {
  Table& lines = editor_.form.grdPozycje;
  if (const auto row = findLine(editor_, txtWhat.text())) return rowIn(lines, row);
  const std::string code = withoutScanMarks(txtWhat.text());
  const std::string_view number = packageNumberIn(code);
  if (number.empty()) return rowIn(lines, findScanned(editor_, code));
  return rowIn(editor_.form.grdOpakowania, findPackage(editor_, number));
}

void FindDialog::btnFind_Click() {
  if (txtWhat.text().empty()) return;
  found_ = again();
  if (found_) return hide();
  lblNothing.setCaption(joined({words::noSuchLine, "."}));
}

}  // namespace awizo
