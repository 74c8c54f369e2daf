#include "desk/number_offer.h"

#include <algorithm>
#include <set>

#include "papers/words.h"
#include "platform/text.h"
#include "tables/columns/columns.h"

namespace awizo {

std::string useWords(const NumberUse& use) {
  return joined({"Этот номер уже был ", papers::dateWords(use.date),
                 use.document.empty() ? "" : " в документе ", use.document, "."});
}

std::string NumberOffer::document() const {
  const std::string number(trimmed(editor_.form.txtNrAwiza.text()));
  return number.empty() ? std::string(trimmed(editor_.form.txtNrZam.text())) : number;
}

std::vector<std::string> NumberOffer::numbersInTable() const {
  const Table& packages = editor_.form.grdOpakowania;
  std::vector<std::string> numbers;
  for (int row = 1; row < packages.rows(); ++row) {
    std::string number = packages.cell(row, GRD_OPAK_SERIAL_NUMBER);
    if (!number.empty()) numbers.push_back(std::move(number));
  }
  return numbers;
}

void NumberOffer::opened() {
  trouble_.clear();
  if (!dialog_.AddMode || !dialog_.txtSerialNumberN.text().empty()) return;
  if (const auto error = caughtError([this] { offer(); })) {
    trouble_ = joined({"Номер не выдан: ", error->description(), "."});
  }
}

void NumberOffer::offer() {
  const std::vector<std::string> shown = numbersInTable();
  const std::set<std::string> own(shown.begin(), shown.end());
  if (own.contains(offered_)) offered_.clear();
  if (offered_.empty()) {
    const std::vector<std::string> taken = numbers_.take(1, document(), own);
    if (taken.empty()) return;
    offered_ = taken.front();
  }
  Control* const place = dialog_.focus();
  dialog_.txtSerialNumberN.userType(offered_);
  // The user begins where he would have begun.
  if (place != nullptr && place->takesInput()) place->userFocus();
}

void NumberOffer::closed() {
  const bool isAccepted = dialog_.DialogResult == 1;
  if (isAccepted && dialog_.txtSerialNumberN.text() == offered_) offered_.clear();
}

void NumberOffer::documentKept() {
  // A record that can't be written hinders no document.
  caughtError([this] {
    const std::vector<std::string> numbers = numbersInTable();
    // Who has no range keeps no record either.
    if (!numbers.empty() && numbers_.range()) numbers_.noteUse(numbers, document());
  });
}

std::string NumberOffer::words() {
  if (!trouble_.empty()) return trouble_;
  const std::string& number = dialog_.txtSerialNumberN.text();
  std::string told;
  caughtError([&] {
    const std::optional<NumberRange> range = numbers_.range();
    const bool isOffered = !number.empty() && number == offered_;
    const bool isMissed = number.empty() && dialog_.AddMode;
    if (const auto use = numbers_.useElsewhere(number, document())) {
      told = useWords(*use);
    } else if (range && (isOffered || (isMissed && numbersLeft(*range) == 0))) {
      told = leftWords(*range);
    }
  });
  return told;
}

std::vector<DocumentFault> NumberOffer::faults() {
  std::vector<DocumentFault> faults;
  caughtError([&] {
    Table& packages = editor_.form.grdOpakowania;
    for (int row = 1; row <= editor_.session.IloscPozycjiOpak && row < packages.rows(); ++row) {
      const auto use =
          numbers_.useElsewhere(packages.cell(row, GRD_OPAK_SERIAL_NUMBER), document());
      if (!use) continue;
      faults.push_back(
          {"Упаковка " + packages.cell(row, GRD_OPAK_ID_LOW), useWords(*use), &packages, row});
    }
  });
  return faults;
}

}  // namespace awizo
