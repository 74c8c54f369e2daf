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
  std::optional<NumberRange> range;
  handed_.clear();
  caughtError([&] {
    range = numbers_.range();
    for (const HandedPart& part : numbers_.handedOut()) handed_ += "\n" + handedWords(part);
  });
  txtExtension.setText(range ? range->extension : "0");
  txtPrefix.setText(range ? range->prefix : "");
  txtFirst.setText(range ? std::to_string(range->first) : "1");
  txtLast.setText(range ? std::to_string(range->last) : "");
  txtNext.setText(range ? std::to_string(range->next) : "");
  filled_ = fieldTexts();
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
  const bool hasNext = range && numbersLeft(*range) > 0;
  lblExample.setCaption(hasNext ? "Следующий номер: " + containerNumber(*range, range->next) : "");
  lblLeft.setCaption(range ? joined({leftWords(*range), handed_}) : "");
  lblDoubt.setCaption(range ? prefixDoubt(*range, sellerILN_) : refusal);
}

void NumberRangeDialog::btnSave_Click() {
  std::string refusal;
  const std::optional<NumberRange> range = typedRange(refusal);
  if (!range) return lblDoubt.setCaption(refusal);
  const auto error = caughtError([&] { numbers_.setRange(*range); });
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
