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
  namesTwice,    ///< every name stands twice
};

/// A `Document-ProductCatalogue` with all twelve values in every line and Cyrillic names of 20 to
/// 60 characters; about 17 MB at full size. Sorted means that each of the four keys ascends.
std::string catalogue(int lines, LineOrder order = LineOrder::random,
                      Repeats repeats = Repeats::few);
/// The service's reply that carries it.
std::string catalogueReply(std::string_view catalogue);
/// A reply with a `Document-Order` whose products are spread over a catalogue of so many lines.
std::string orderReply(int lines, int catalogueLines);
/// EAN of the catalogue's line of that number.
std::string catalogueEAN(int line);

/// Parses with bare libxml2 and frees the document; stops the program if it isn't well-formed.
void parseBare(std::string_view text);
/// The same, and serialises the document before it is freed.
void parseAndSerialiseBare(std::string_view text);

}  // namespace awizo::benchmarks
