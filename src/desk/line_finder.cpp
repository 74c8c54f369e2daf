#include "desk/line_finder.h"

#include <utility>

#include "desk/layout_words.h"
#include "platform/forms/keys.h"
#include "platform/text.h"

namespace awizo {

LineFinder::LineFinder(const Editor& editor)
    : findDialog(editor.screen(), editor), faultList(editor.screen()), editor_(editor) {}

void LineFinder::tell(std::string_view words) const {
  if (say) say(words);
}

void LineFinder::goToRow(const std::optional<FoundRow>& found, std::string_view nothing) {
  if (!found) return tell(nothing);
  found->table->userRow(found->row);
}

void LineFinder::find() {
  if (!editor_.form.takesInput()) return;
  goToRow(findDialog.ask(), "");
}

void LineFinder::findAgain() {
  if (findDialog.txtWhat.text().empty()) return find();
  if (editor_.form.takesInput()) goToRow(findDialog.again(), words::noSuchLine);
}

void LineFinder::showFaults() {
  if (!editor_.form.takesInput()) return;
  std::vector<DocumentFault> faults = faultsOf(editor_);
  if (moreFaults) {
    for (DocumentFault& fault : moreFaults()) faults.push_back(std::move(fault));
  }
  if (const auto chosen = faultList.choose(std::move(faults))) goTo(*chosen);
}

bool LineFinder::takeKey(std::int16_t code) {
  if (code >= '0' && code <= '9') {
    code_.add(static_cast<char>(code));
    tell(joined({words::codeSoFar, code_.digits()}));
    return true;
  }
  if (code_.digits().empty()) return false;
  tell("");
  const std::string scanned = code == keys::enter ? code_.end() : "";
  code_.forget();
  if (scanned.empty()) return false;
  goToScanned(scanned);
  return true;
}

void LineFinder::goToScanned(std::string_view code) {
  const std::string_view number = packageNumberIn(code);
  if (number.empty() && takeProduct) return tell(takeProduct(code));
  AwizoForm& form = editor_.form;
  if (number.empty()) {
    const auto row = findScanned(editor_, code);
    return goToRow(rowIn(form.grdPozycje, row), joined({words::noSuchCode, code}));
  }
  const auto row = findPackage(editor_, number);
  goToRow(rowIn(form.grdOpakowania, row), joined({words::noSuchPackage, number}));
}

void LineFinder::forgetCode() {
  if (!code_.digits().empty()) tell("");
  code_.forget();
}

}  // namespace awizo
