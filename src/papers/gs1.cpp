#include "papers/gs1.h"

#include <algorithm>
#include <cmath>

#include "packagedialog/serial_number.h"

namespace awizo::papers {
namespace {

constexpr std::size_t mostCharacters = 48;

bool areDigits(std::string_view text) {
  return !text.empty() &&
         std::ranges::all_of(text, [](char letter) { return letter >= '0' && letter <= '9'; });
}

/// The value of the identifier among all symbols of the label; empty where there is none.
std::string_view valueOf(const std::vector<Gs1Elements>& symbols, std::string_view identifier) {
  for (const Gs1Elements& symbol : symbols) {
    for (const Gs1Element& element : symbol) {
      if (element.identifier == identifier) return element.value;
    }
  }
  return "";
}

/// A count has up to 8 digits, and none in front that say nothing.
bool isCount(std::string_view value) {
  return areDigits(value) && value.size() <= 8 && value.front() != '0';
}

bool isFormed(const Gs1Element& element) {
  if (element.identifier == "00") return isContainerNumber(element.value);
  if (element.identifier == "02") {
    return element.value.size() == 14 && productNumber(element.value) == element.value;
  }
  return element.identifier == "37" && isCount(element.value);
}

/// Identifiers, values, and the separator after a value of free length that isn't the last.
std::size_t countedCharacters(const Gs1Elements& elements) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const bool separated = elements[i].identifier == "37" && i + 1 < elements.size();
    count += elements[i].identifier.size() + elements[i].value.size() + (separated ? 1 : 0);
  }
  return count;
}

/// Numbers that shops give to goods of their own mean nothing elsewhere.
bool isOfOneShop(std::string_view fourteen) {
  const std::string_view short8 = fourteen.substr(6);
  if (fourteen.starts_with("000000")) return short8.front() == '0' || short8.front() == '2';
  const std::string_view thirteen = fourteen.substr(1);
  return thirteen.starts_with("02") || thirteen.starts_with("04") || thirteen.starts_with('2');
}

}  // namespace

std::string bracketed(const Gs1Elements& elements) {
  std::string text;
  for (const Gs1Element& element : elements) {
    text += "(" + element.identifier + ")" + element.value;
  }
  return text;
}

std::string readableText(const Gs1Elements& elements) {
  std::string text;
  for (const Gs1Element& element : elements) {
    if (!text.empty()) text += ' ';
    text += "(" + element.identifier + ") " + element.value;
  }
  return text;
}

bool hasRightCheckDigit(std::string_view number) {
  constexpr std::size_t longest = 18;
  if (!areDigits(number) || number.size() > longest) return false;
  // The weights count from the right, so that zeros in front make all kinds of numbers one.
  const std::string filled = std::string(longest - number.size(), '0') + std::string(number);
  return containerCheckDigit(filled) == number.back() - '0';
}

bool isContainerNumber(std::string_view number) {
  return number.size() == 18 && hasRightCheckDigit(number) &&
         !number.substr(1).starts_with("0000000");
}

std::string productNumber(std::string_view ean) {
  const bool hasLength =
      ean.size() == 8 || ean.size() == 12 || ean.size() == 13 || ean.size() == 14;
  if (!hasLength || !hasRightCheckDigit(ean)) return "";
  std::string fourteen = std::string(14 - ean.size(), '0') + std::string(ean);
  return fourteen.front() == '9' || isOfOneShop(fourteen) ? "" : fourteen;
}

std::string labelRefusal(const std::vector<Gs1Elements>& symbols) {
  for (const Gs1Elements& symbol : symbols) {
    for (const Gs1Element& element : symbol) {
      if (!isFormed(element)) {
        return "неверное значение (" + element.identifier + ") " + element.value;
      }
    }
    if (symbol.empty()) return "пустой штрихкод";
    if (countedCharacters(symbol) > mostCharacters) return "штрихкод длиннее 48 знаков";
  }
  if (valueOf(symbols, "00").empty()) return "нет номера упаковки (00)";
  if (valueOf(symbols, "02").empty() != valueOf(symbols, "37").empty()) {
    return "содержимое (02) и количество (37) бывают только вместе";
  }
  return "";
}

double moduleWidth(int dotsPerInch) {
  constexpr double inch = 25.4;
  // Printers that are called 203 have 8 dots on a millimetre.
  const double dot = dotsPerInch == 203 ? 0.125 : inch / dotsPerInch;
  return std::ceil(leastModule / dot) * dot;
}

}  // namespace awizo::papers
