#include "packagedialog/serial_number.h"

#include "platform/text.h"

namespace awizo {
namespace {

/// A character counts as a digit when it is "0" or its numeric value isn't 0.
bool isDigitText(std::string_view text) {
  for (const char character : text) {
    if (character < '0' || character > '9') return false;
  }
  return true;
}

}  // namespace

int containerCheckDigit(std::string_view digits) {
  int sum = 0;
  for (std::size_t place = 0; place < 17; ++place) {
    const int digit = digits[place] - '0';
    sum += place % 2 == 0 ? digit * 3 : digit;
  }
  return (10 - sum % 10) % 10;
}

std::string serialNumberRefusal(std::string_view serial) {
  if (serial.empty()) return "Не заполнено поле 'серийный номер'";
  if (countCharacters(serial) != 18 || !isDigitText(serial)) return "Неправильный номер палеты";
  const int expected = containerCheckDigit(serial);
  if (expected == serial[17] - '0') return "";
  return "Неправильный номер палеты. Последней- контрольной цифре должно быть задано значение " +
         std::to_string(expected);
}

}  // namespace awizo
