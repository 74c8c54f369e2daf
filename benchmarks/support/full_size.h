#pragma once

#include <string>
#include <string_view>

namespace awizo::benchmarks {

// Documents at the system's own limits, the same at each call for the same arguments.

inline constexpr int mostCatalogueLines = 32767;
inline constexpr int mostOrderLines = 1423;
inline constexpr int mostPackages = 2183;

enum class LineOrder { random, sorted, reversed };

/// What repeats among the values of the four lists' keys.
enum class Repeats {
  few,           ///< one in twenty names or EANs
  noBuyerCodes,  ///< no line has a buyer's code
  namesTwice,    ///< every name occurs twice
};

/// A `Document-ProductCatalogue` with all twelve values in every line and Cyrillic names of 20 to
/// 60 characters; about 17 MB at full size. Sorted means that each of the four keys ascends.
std::string catalogue(int lines, LineOrder order = LineOrder::random,
                      Repeats repeats = Repeats::few);
/// A `Document-Order` whose products are spread over a catalogue of this many lines.
std::string order(int lines, int catalogueLines);

/// How a document is laid out. Reading drops white space between elements, so that one kind alone
/// would flatter.
enum class Layout {
  compact,   ///< a product or an order's line is one line of text, without white space
  indented,  ///< every element on a line of its own
};
/// A document of the above, which are compact.
std::string laidOut(std::string document, Layout layout);

/// The service's replies that carry a document.
std::string catalogueReply(std::string_view catalogue);
std::string orderReply(std::string_view order);
/// EAN of the catalogue's line of that number.
std::string catalogueEAN(int line);

// These work with bare libxml2 in its cheapest way, and stop the program if the text isn't
// well-formed.

/// Parses and frees the document.
void parseBare(std::string_view text);
/// The same with a file, which is read while it is parsed.
void parseBareFile(const std::string& path);
/// Parses, serialises the document and frees it.
void parseAndSerialiseBare(std::string_view text);

}  // namespace awizo::benchmarks
