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

std::optional<int> FindDialog::ask() {
  found_.reset();
  lblNothing.setCaption("");
  showModal();
  return found_;
}

std::optional<int> FindDialog::again() const {
  if (const auto row = findLine(editor_, txtWhat.text())) return row;
  const std::string code = withoutScanMarks(txtWhat.text());
  // An EAN in the symbol of a label has 14 digits.
  return code.empty() ? std::nullopt : findScanned(editor_, code);
}

void FindDialog::btnFind_Click() {
  if (txtWhat.text().empty()) return;
  found_ = again();
  if (found_) return hide();
  lblNothing.setCaption(joined({words::noSuchLine, "."}));
}

}  // namespace awizo
