#include "tables/package_references.h"

#include <algorithm>
#include <array>

#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "platform/text.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

namespace awizo {
namespace {

constexpr std::string_view referenceSeparator = "$";
constexpr std::string_view fieldSeparator = "@";
constexpr std::size_t fieldCount = 4;
constexpr std::size_t quantityField = 3;

std::vector<std::string> referencesOf(std::string_view text) {
  return split(text, referenceSeparator);
}

/// The fields of a reference; an empty reference has none, not even the serial.
std::vector<std::string> fieldsOf(std::string_view reference) {
  return split(reference, fieldSeparator);
}

const std::string& serialOf(const std::vector<std::string>& fields) {
  if (fields.empty()) throw errors::subscriptOutOfRange();
  return fields.front();
}

std::string gridText(const Table& table) {
  if (table.rows() == 2 && table.cell(flatIndex(table, 1, 1)).empty()) return "";
  std::string text;
  const std::int16_t last = narrow16(table.rows() - 1);
  for (std::int16_t row = 1; row <= last; ++row) {
    if (row > 1) text.append(referenceSeparator);
    for (int column = 1; column <= GRD_PACKAGES_QUANTITY; ++column) {
      if (column > 1) text.append(fieldSeparator);
      text.append(table.cell(flatIndex(table, row, column)));
    }
  }
  return text;
}

void fillGrid(Table& table, std::string_view text) {
  table.clear();
  table.setRows(2);
  writePackageHeadings(table, {white, Alignment::centre, false, true});
  const std::vector<std::string> references = referencesOf(text);
  if (references.empty()) return;
  table.setRows(narrow16(static_cast<std::int64_t>(references.size()) + 1));
  int number = 0;
  for (const std::string& reference : references) {
    const Row row(table, ++number);
    const std::vector<std::string> fields = fieldsOf(reference);
    row.set(GRD_PACKAGES_SERIAL, serialOf(fields));
    const std::size_t count = std::min(fields.size(), fieldCount);
    for (std::size_t i = 1; i < count; ++i) row.set(static_cast<int>(i) + 1, fields[i]);
  }
}

/// The kept references. The separator before one is decided by its place in the old string, so the
/// text begins with one when the first reference was removed and a later one was kept.
template <class Contains>
std::string keptReferences(std::string_view text, const Contains& isDeleted) {
  std::string kept;
  bool first = true;
  for (const std::string& reference : referencesOf(text)) {
    const std::vector<std::string> fields = fieldsOf(reference);
    if (!isDeleted(serialOf(fields))) {
      if (!first) kept.append(referenceSeparator);
      const std::size_t count = std::min(fields.size(), fieldCount);
      for (std::size_t i = 0; i < count; ++i) {
        if (i > 0) kept.append(fieldSeparator);
        kept.append(fields[i]);
      }
    }
    first = false;
  }
  return kept;
}

template <class Contains>
std::string removeReferences(Work& work, std::string_view text, const Contains& isDeleted) {
  std::string result;
  const bool done = reportErrors(work.screen(), "Произошла ошибка в RemoveOldPackRef", [&] {
    work.session.log.trace("RemoveOldPackRef - INPUT: ", text);
    result = keptReferences(text, isDeleted);
    if (result.starts_with(referenceSeparator)) {
      work.session.log.trace("RemoveOldPackRef - separator z przodu: ", result);
      result.erase(0, referenceSeparator.size());
    }
    work.session.log.trace("RemoveOldPackRef - OUTPUT: ", result);
  });
  return done ? result : "";
}

std::string textAt(const XmlNode& node, std::string_view path) {
  const XmlNode found = node.selectSingle(path);
  return found ? found.text() : "";
}

std::string textOfElements(const Xml& xml, std::string_view elements) {
  const std::unique_ptr<XmlDocument> document = xml.createDocument();
  if (!document->loadText(std::string("<root>").append(elements).append("</root>"))) return "";
  std::string text;
  bool first = true;
  for (const XmlNode& reference : document->node().selectAll("/root/Package-Reference")) {
    if (!first) text.append(referenceSeparator);
    first = false;
    text.append(textAt(reference, "PackageId")).append(fieldSeparator);
    // The path starts at the root, which is another element, so the description stays empty.
    text.append(textAt(reference, "/Goods-Identity/Range/ID-Begin")).append(fieldSeparator);
    text.append(textAt(reference, "Quantity"));
  }
  return text;
}

/// For procedures that end at an error without showing it and return the empty text.
template <class Body>
std::string emptyOnError(Body&& body) {
  try {
    return body();
  } catch (const RunTimeError&) {
    return "";
  }
}

}  // namespace

void writePackageHeadings(Table& table, const CellLook& look) {
  for (const Column& column : packageOfLineColumns) {
    Row(table, 0).set(column.number, column.heading);
    table.setLook(0, column.number, look);
  }
}

std::string GridToString(const Table& table) {
  return emptyOnError([&] { return gridText(table); });
}

void StringToGrid(Table& table, std::string_view text) {
  try {
    fillGrid(table, text);
  } catch (const RunTimeError&) {
    // What is in the table stays there.
  }
}

std::string RemoveOldPackRef(Work& work, std::string_view text,
                             const std::vector<std::string>& delSerials) {
  return removeReferences(work, text, [&](const std::string& serial) {
    return std::find(delSerials.begin(), delSerials.end(), serial) != delSerials.end();
  });
}

std::string RemoveOldPackRef(Work& work, std::string_view text, const SerialSet& delSerials) {
  return removeReferences(work, text,
                          [&](const std::string& serial) { return delSerials.contains(serial); });
}

std::string GetPackedQuantity(Work& work, std::string_view text) {
  std::string result;
  reportErrors(work.screen(), "Произошла ошибка в GetPackedQuantity", [&] {
    const Conversions& conversions = work.conversions;
    work.session.log.trace("GetPackedQuantity - INPUT: ", text);
    double total = 0;
    for (const std::string& reference : referencesOf(text)) {
      const std::vector<std::string> fields = fieldsOf(reference);
      if (fields.size() > quantityField) total += conversions.toDouble(fields[quantityField]);
    }
    const std::string plain = conversions.plainNumber(total);
    work.session.log.trace("GetPackedQuantity - OUTPUT: ", plain);
    result = conversions.NormalizeDecimal(plain, 3);
  });
  return result;
}

std::vector<PackageReference> packageReferences(std::string_view text) {
  std::vector<PackageReference> references;
  for (const std::string& reference : referencesOf(text)) {
    std::vector<std::string> fields = fieldsOf(reference);
    if (fields.empty()) return {};
    PackageReference& added = references.emplace_back();
    added.packageId = std::move(fields.front());
    if (fields.size() > quantityField) {
      added.quantity = Conversions::CommaToDot(fields[quantityField]);
    }
  }
  return references;
}

std::string packageReferenceXml(const PackageReference& reference) {
  std::string xml = "<Package-Reference><PackageId>" + reference.packageId + "</PackageId>";
  if (reference.quantity)
    xml.append("<Quantity>").append(*reference.quantity).append("</Quantity>");
  return xml.append("</Package-Reference>");
}

std::string PackageRefsToXml(std::string_view text) {
  std::string xml;
  for (const PackageReference& reference : packageReferences(text)) {
    xml += packageReferenceXml(reference);
  }
  return xml;
}

std::string PackageRefsFromXml(const Xml& xml, std::string_view text) {
  return emptyOnError([&] { return textOfElements(xml, text); });
}

}  // namespace awizo
