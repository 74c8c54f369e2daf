#include "desk/number_offer.h"

#include <algorithm>
#include <set>

#include "desk/host_boxes.h"
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
  asksForRange_ = false;
  if (!dialog_.AddMode || !dialog_.txtSerialNumberN.text().empty()) return;
  if (const auto error = caughtError([this] { offer(); })) {
    trouble_ = joined({"Номер не выдан: ", diskRefusal(*error), "."});
  }
}

void NumberOffer::dropOthers() {
  if (waiting_.empty()) return;
  const std::optional<NumberRange> range = numbers_.range();
  std::erase_if(waiting_,
                [&](const std::string& number) { return !range || !serialIn(*range, number); });
}

void NumberOffer::takeFor(std::size_t count) {
  dropOthers();
  const std::vector<std::string> shown = numbersInTable();
  const std::set<std::string> own(shown.begin(), shown.end());
  std::erase_if(waiting_, [&](const std::string& number) { return own.contains(number); });
  if (waiting_.size() >= count) return;
  const std::vector<std::string> taken = numbers_.take(count - waiting_.size(), document(), own);
  waiting_.insert(waiting_.end(), taken.begin(), taken.end());
}

void NumberOffer::prepare(std::size_t count) {
  // Where none can be taken now, each package tells why.
  caughtError([&] { takeFor(count); });
}

std::string NumberOffer::wordsFor(std::size_t count) {
  std::string told;
  caughtError([&] {
    dropOthers();
    const std::optional<NumberRange> range = numbers_.range();
    const std::vector<HandedPart> handed = numbers_.handedOut();
    if (!range) {
      told = "Номера упаковок не заданы, а без номера упаковку не добавить.";
    } else if (const std::uint64_t left = numbersLeft(*range, handed) + waiting_.size();
               left < count) {
      told = joined({"Номеров не хватит: осталось ", std::to_string(left), "."});
    } else {
      told = leftWords(*range, handed);
    }
  });
  return told;
}

bool NumberOffer::hasRange() const { return numbers_.range().has_value(); }

void NumberOffer::offer() {
  takeFor(1);
  if (waiting_.empty()) {
    asksForRange_ = !noRangeWords.empty() && !hasAsked_ && !hasRange();
    return;
  }
  Control* const place = dialog_.focus();
  dialog_.txtSerialNumberN.userType(waiting_.front());
  // The user begins where he would have begun.
  if (place != nullptr && place->takesInput()) place->userFocus();
}

void NumberOffer::rangeShown() {
  bool isEntered = false;
  caughtError([&] { isEntered = asksForRange_ && hasRange(); });
  if (isEntered) opened();
}

void NumberOffer::closed() {
  asksForRange_ = false;
  const bool isAccepted = dialog_.DialogResult == 1;
  if (isAccepted && isOffered(dialog_.txtSerialNumberN.text())) waiting_.pop_front();
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
  if (asksForRange_ && number.empty()) {
    hasAsked_ = true;
    return noRangeWords;
  }
  std::string told;
  caughtError([&] {
    const std::optional<NumberRange> range = numbers_.range();
    const bool isMissed = number.empty() && dialog_.AddMode;
    if (const auto use = numbers_.useElsewhere(number, document())) {
      told = useWords(*use);
    } else if (range && (isMissed || isOffered(number))) {
      const std::vector<HandedPart> handed = numbers_.handedOut();
      const bool isEnd = numbersLeft(*range, handed) == 0;
      if (isEnd || !isMissed) told = leftWords(*range, handed);
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
