#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "platform/forms/table.h"
#include "session/record/work.h"
#include "tables/package_reference.h"

namespace awizo {

// The package reference string of a line says which packages hold how much of it: references
// joined by "$", each up to four fields joined by "@": the package's serial, its description and
// level at the time, and the quantity as a screen number with 3 decimals. Nothing is escaped. The
// empty text stands for no package.

/// Writes the five headings of a line dialog's table into row 0.
void writePackageHeadings(Table& table, const CellLook& look);

/// The string of the assignments in a line dialog's table (columns 1 to 4); the empty text for a
/// table whose one row has no serial, and where the table is too large for the flat index.
std::string GridToString(const Table& table);

/// Refills a line dialog's table from the string, headings included. A table that can't be filled
/// to the end stays partly filled.
void StringToGrid(Table& table, std::string_view text);

/// Serials of packages, looked up in a time that doesn't grow with their number.
class SerialSet {
 public:
  explicit SerialSet(const std::vector<std::string>& serials)
      : serials_(serials.begin(), serials.end()) {}
  bool contains(const std::string& serial) const { return serials_.contains(serial); }

 private:
  std::unordered_set<std::string> serials_;
};

/// The string without the references of these serials. After an error, which is shown, returns the
/// empty text.
std::string RemoveOldPackRef(Work& work, std::string_view text,
                             const std::vector<std::string>& delSerials);
/// The same, for a caller that goes over many lines.
std::string RemoveOldPackRef(Work& work, std::string_view text, const SerialSet& delSerials);

/// Sum of the quantities as a screen number with 3 decimals; a reference of less than four fields
/// has none. After an error, such as a quantity that is no number, which is shown, returns the
/// empty text.
std::string GetPackedQuantity(Work& work, std::string_view text);

/// The references as a document has them: without description and level, and with a quantity where
/// there are four fields. None at all where a reference has no field.
std::vector<PackageReference> packageReferences(std::string_view text);

/// Its element; the values are written unescaped.
std::string packageReferenceXml(const PackageReference& reference);

/// The elements of the references of the string, one after another.
std::string PackageRefsToXml(std::string_view text);

/// The string of the Package-Reference elements in this XML text of siblings, each as
/// "id@@quantity". The empty text where it doesn't parse.
std::string PackageRefsFromXml(const Xml& xml, std::string_view text);

}  // namespace awizo
