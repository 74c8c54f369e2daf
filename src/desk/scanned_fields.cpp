#include "desk/scanned_fields.h"

#include <algorithm>

#include "desk/line_search.h"
#include "platform/text.h"

namespace awizo {
namespace {

std::string productNumber(const std::string& text) { return withoutScanMarks(text); }

std::string packageNumber(const std::string& text) {
  const std::string plain = withoutScanMarks(text);
  const std::string_view number = packageNumberIn(plain);
  return number.empty() ? plain : std::string(number);
}

template <class Field>
ScannedField scanned(Field& field, int limit, std::string (*number)(const std::string& text)) {
  return {&field, static_cast<std::size_t>(limit), number,
          [&field](const std::string& text) { field.userType(text); }};
}

bool isAscii(std::string_view character) {
  return character.size() == 1 && static_cast<unsigned char>(character[0]) < 0x80;
}

}  // namespace

std::vector<ScannedField> scannedFields(AwizoWysylki& control) {
  TextField& number = control.dlgSzczegoly.txtSerialNumberN;
  TextField& ean = control.dlgDodaj.txtlEANProdWart;
  return {scanned(number, number.limit(), packageNumber), scanned(ean, ean.limit(), productNumber),
          scanned(control.dlgDodaj.cboxEANProd, 0, productNumber)};
}

std::vector<Table*> scannedTables(AwizoForm& form) {
  return {&form.grdPozycje, &form.grdOpakowania};
}

std::vector<Button*> scannedButtons(AwizoForm& form) {
  std::vector<Button*> buttons;
  for (Control* control : form.controls()) {
    auto* button = dynamic_cast<Button*>(control);
    if (button != nullptr && button->isFocusable()) buttons.push_back(button);
  }
  return buttons;
}

const ScannedField* ScannedTyping::find(const Control* control) const {
  const auto found = std::ranges::find(fields_, control, &ScannedField::control);
  return found == fields_.end() ? nullptr : &*found;
}

std::optional<std::string> ScannedTyping::typed(const ScannedField& field,
                                                std::string_view character, bool begins) {
  if (&field != current_) giveBack();
  current_ = &field;
  if (begins) text_.clear();
  const std::string given = isAscii(character) ? marks_.given(character[0], text_.empty())
                                               : joined({marks_.giveBack(), character});
  if (given.empty()) return std::nullopt;
  return put(field, text_ + given);
}

std::optional<std::string> ScannedTyping::pasted(const ScannedField& field,
                                                 const std::string& text) {
  giveBack();
  current_ = &field;
  // The whole of it, before the field's limit cuts off its end.
  const std::string plain(trimmed(text));
  const std::string number = field.number(plain);
  return put(field, number == plain ? text : number);
}

std::optional<std::string> ScannedTyping::giveBack() {
  const std::string held = marks_.giveBack();
  if (held.empty() || !current_->control->form().takesInput()) return std::nullopt;
  return put(*current_, text_ + held);
}

std::string ScannedTyping::edited(const ScannedField& field, const std::string& text) {
  // Where no more fits, the end of what was pasted may have been lost: it isn't made to look whole.
  const bool isFull = field.limit > 0 && countCharacters(text) >= field.limit;
  return isFull ? text : field.number(text);
}

std::optional<std::string> ScannedTyping::put(const ScannedField& field, const std::string& text) {
  text_ = edited(field, text);
  field.type(text_);
  return text_;
}

}  // namespace awizo
