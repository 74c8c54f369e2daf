#include "foundation/conversions_in_place.h"

namespace awizo {

/// The text changes first, and stays changed when the number of decimals raises an error.
std::string NormalizeDecimal(const Conversions& conversions, std::string& text, int decimals) {
  text = conversions.withLocalSeparator(text);
  return conversions.FormatFixed(text, decimals);
}

std::string FormatForXml(const Conversions& conversions, std::string& text, int decimals) {
  std::string xml = conversions.FormatForXml(text, decimals);
  text = conversions.FormatFixed(text, decimals);
  if (text.empty()) text = "-1";
  return xml;
}

double MyDouble(const Conversions& conversions, std::string& text) {
  text = conversions.withLocalSeparator(text);
  return conversions.MyDouble(text);
}

}  // namespace awizo
