#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace awizo::papers {

/// A value with the identifier that says what it is.
struct Gs1Element {
  std::string identifier;  ///< "00", "02", "37"
  std::string value;
  bool operator==(const Gs1Element&) const = default;
};

/// What one symbol holds.
using Gs1Elements = std::vector<Gs1Element>;

/// "(02)09520001010019(37)24", as symbols are asked for.
std::string bracketed(const Gs1Elements& elements);
/// The same for people, with a space after each identifier and between values.
std::string readableText(const Gs1Elements& elements);

/// Whether all are digits and the last one is right: of a product, a place or a package (at most
/// 18).
bool hasRightCheckDigit(std::string_view number);

/// Whether it can be the number of a package on a label: 18 digits with the right last one, and a
/// company's prefix that isn't all zeros.
bool isContainerNumber(std::string_view number);

/// A product's number of 8, 12, 13 or 14 digits as the 14 digits of a symbol; empty for one that
/// isn't right, that a shop has made for itself, or whose goods vary in weight.
std::string productNumber(std::string_view ean);

/// Why these symbols can't stand on one label, in Russian; empty where they can. A value needs
/// those that say what it belongs to: the content (02) its count (37), the count its content, both
/// the number of the package (00); and a symbol holds no more than 48 characters.
std::string labelRefusal(const std::vector<Gs1Elements>& symbols);

/// The width of a module: as many whole dots of the printer as make it wide enough. Millimetres.
double moduleWidth(int dotsPerInch);

// Bounds of a GS1-128 symbol on packages, in millimetres; a quiet zone in modules.
inline constexpr double leastModule = 0.495;
inline constexpr double widestModule = 0.94;
inline constexpr int quietModules = 10;
inline constexpr double barHeight = 32;
inline constexpr double longestSymbol = 165.1;

}  // namespace awizo::papers
