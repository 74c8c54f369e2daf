#include "desk/number_range_dialog.h"

#include <charconv>

#include "desk/host_boxes.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo {

NumberRangeDialog::NumberRangeDialog(Screen& screen, GivenNumbers& numbers)
    : Form(screen, "NumberRangeDialog"),
      txtExtension(*this, "txtExtension", "Первая цифра (0–9):"),
      txtPrefix(*this, "txtPrefix", "Префикс фирмы (GS1):"),
      txtFirst(*this, "txtFirst", "Порядковые номера с:"),
      txtLast(*this, "txtLast", "по:"),
      txtNext(*this, "txtNext", "Следующий:"),
      lblExample(*this, "lblExample"),
      lblLeft(*this, "lblLeft"),
      lblDoubt(*this, "lblDoubt"),
      lblPlace(*this, "lblPlace"),
      txtPartCount(*this, "txtPartCount", "Отдать номеров:"),
      txtPartPlace(*this, "txtPartPlace", "Кому:"),
      btnHandOut(*this, "btnHandOut", "&Отдать часть"),
      btnSave(*this, "btnSave", "&Сохранить"),
      btnClose(*this, "btnClose", "&Закрыть"),
      numbers_(numbers) {
  setCaption("Номера упаковок (SSCC)");
  closeButton = &btnClose;
  onActivate = [this] { txtPrefix.setFocus(); };
  for (TextField* field : {&txtExtension, &txtPrefix, &txtFirst, &txtLast, &txtNext}) {
    field->onChange = [this] { tell(); };
  }
  // Enter does what the user has typed for.
  for (TextField* field : {&txtPartCount, &txtPartPlace}) {
    field->onChange = [this] {
      const bool isPart = !txtPartCount.text().empty() || !txtPartPlace.text().empty();
      acceptButton = isPart ? &btnHandOut : &btnSave;
    };
  }
  btnHandOut.onClick = [this] { btnHandOut_Click(); };
  btnSave.onClick = [this] { btnSave_Click(); };
  btnClose.onClick = [this] { hide(); };
}

void NumberRangeDialog::show(std::string sellerILN) {
  sellerILN_ = std::move(sellerILN);
  txtPartCount.setText("");
  txtPartPlace.setText("");
  acceptButton = &btnSave;
  fill();
  tell();
  showModal();
}

void NumberRangeDialog::fill() {
  stored_.reset();
  handed_.clear();
  caughtError([&] {
    stored_ = numbers_.range();
    handed_ = numbers_.handedOut();
  });
  const std::optional<NumberRange>& range = stored_;
  txtExtension.setText(range ? range->extension : "0");
  txtPrefix.setText(range ? range->prefix : "");
  txtFirst.setText(range ? std::to_string(range->first) : "1");
  txtLast.setText(range ? std::to_string(range->last) : "");
  txtNext.setText(range ? std::to_string(range->next) : "");
  filled_ = fieldTexts();
  filledNext_ = txtNext.text();
}

std::string NumberRangeDialog::fieldTexts() const {
  return joined({txtExtension.text(), "\n", txtPrefix.text(), "\n", txtFirst.text(), "\n",
                 txtLast.text(), "\n", txtNext.text()});
}

std::optional<NumberRange> NumberRangeDialog::typedRange(std::string& refusal) const {
  const auto text = [](const TextField& field) { return trimmed(field.text()); };
  return rangeOf(text(txtExtension), text(txtPrefix), text(txtFirst), text(txtLast), text(txtNext),
                 refusal);
}

void NumberRangeDialog::tell() {
  std::string refusal;
  const std::optional<NumberRange> range = typedRange(refusal);
  const bool hasNext = range && numbersLeft(*range, handed_) > 0;
  lblExample.setCaption(hasNext ? "Следующий номер: " + containerNumber(*range, range->next) : "");
  std::string left = range ? leftWords(*range, handed_) : "";
  for (const HandedPart& part : handed_) {
    if (range) left += "\n" + handedWords(part);
  }
  lblLeft.setCaption(left);
  lblDoubt.setCaption(range ? doubt(*range) : refusal);
}

std::string NumberRangeDialog::doubt(const NumberRange& range) const {
  const std::string prefix = prefixDoubt(range, sellerILN_);
  const bool goesBack = stored_ && areAlike(*stored_, range) && range.next < stored_->next;
  if (!goesBack) return prefix;
  return joined(
      {prefix, prefix.empty() ? "" : "\n", "Номера, которые уже выданы, будут пропущены."});
}

void NumberRangeDialog::btnSave_Click() {
  std::string refusal;
  const std::optional<NumberRange> range = typedRange(refusal);
  if (!range) return lblDoubt.setCaption(refusal);
  // Another window may have taken numbers since the fields were filled.
  const NextSerial next = isNextChanged() ? NextSerial::asSaid : NextSerial::notBack;
  const auto error = caughtError([&] { numbers_.setRange(*range, next); });
  if (error) return lblDoubt.setCaption(joined({"Не сохранено: ", diskRefusal(*error), "."}));
  hide();
}

void NumberRangeDialog::btnHandOut_Click() {
  // A part is one of the stored range, which the fields show again afterwards.
  if (fieldTexts() != filled_) return lblDoubt.setCaption("Сначала сохраните диапазон.");
  const std::string count(trimmed(txtPartCount.text()));
  const std::string place(trimmed(txtPartPlace.text()));
  std::uint64_t wanted = 0;
  const auto read = std::from_chars(count.data(), count.data() + count.size(), wanted);
  const bool isCount = read.ec == std::errc{} && read.ptr == count.data() + count.size();
  if (!isCount || wanted == 0) return lblDoubt.setCaption("Сколько номеров отдать?");
  if (place.empty()) return lblDoubt.setCaption("Кому отдать часть?");
  std::optional<NumberRange> part;
  const auto error = caughtError([&] { part = numbers_.handOut(wanted, place); });
  if (error) return lblDoubt.setCaption(joined({"Не отдано: ", diskRefusal(*error), "."}));
  if (!part)
    return lblDoubt.setCaption("Отдавать нечего: сохранённого диапазона нет, или он кончился.");
  fill();
  tell();
  txtPartCount.setText("");
  acceptButton = &btnSave;
  const std::uint64_t given = part->last - part->first + 1;
  const std::string less =
      given < wanted ? joined({" только ", std::to_string(given), " из ", count}) : "";
  lblDoubt.setCaption(joined(
      {"Отдано", less, ". Там впишите: первая цифра ", part->extension, ", префикс ", part->prefix,
       ", номера с ", std::to_string(part->first), " по ", std::to_string(part->last), "."}));
}

}  // namespace awizo
