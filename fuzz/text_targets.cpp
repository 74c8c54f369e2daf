// Texts of fields and cells.

#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "formats/customs_number.h"
#include "fuzz/targets.h"
#include "platform/forms/form.h"
#include "platform/text.h"
#include "tables/package_references.h"
#include "tests/support/test_editor.h"

namespace awizo::fuzz {

namespace {

/// One editor of each locale; the readers of texts keep nothing from one call to the next.
std::array<test::TestEditor, 2>& editors() {
  static std::array<test::TestEditor, 2> both{test::TestEditor("ru_RU"), test::TestEditor("en_US")};
  return both;
}

void checkTableOfReferences(test::TestEditor& desk, std::string_view text) {
  Form form(desk.screen, "form");
  Table table(form, "table", 2, 5);
  StringToGrid(table, text);
  const std::string once = GridToString(table);
  StringToGrid(table, once);
  require(GridToString(table) == once, "a reference string comes back from its table");
}

std::size_t referenceCount(std::string_view text) { return split(text, "$").size(); }

void checkXmlOfReferences(test::TestEditor& desk, std::string_view text) {
  const std::string elements = PackageRefsToXml(text);
  // Nothing is escaped, since serials and quantities are figures.
  if (elements.empty() || text.find_first_of("<>&") != text.npos) return;
  const std::string read = PackageRefsFromXml(desk.xml, elements);
  // A text with a control character isn't XML at all.
  require(read.empty() || referenceCount(read) == referenceCount(text),
          "each reference comes back from its XML");
}

void checkNumber(const Conversions& conversions, std::string_view text) {
  const std::string fixed = conversions.FormatFixed(text, 3);
  if (!conversions.isNumeric(text)) {
    require(fixed == text, "what is no number stays as it is");
    return;
  }
  require(conversions.isNumeric(fixed), "a number stays a number");
  require(conversions.FormatFixed(fixed, 3) == fixed, "a rounded number stays as it is");
  const double value = conversions.toDouble(text);
  require(std::isfinite(value), "a number is finite");
  const std::string plain = conversions.plainNumber(value);
  require(conversions.plainNumber(conversions.toDouble(plain)) == plain,
          "a plain number is read as what it was written from");
  const std::string normal = conversions.NormalizeDecimal(text, 2);
  require(conversions.NormalizeDecimal(normal, 2) == normal, "a normal number stays as it is");
}

template <class Read>
auto readOrNone(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const RunTimeError& error) {
    require(error.number() == errors::typeMismatch().number(), "no date is a type mismatch");
    return std::nullopt;
  }
}

void checkDate(const Conversions& conversions, std::string_view text) {
  if (const auto date = readOrNone([&] { return conversions.toDate(text); })) {
    const std::string shown = conversions.locale().shortDate(*date);
    require(conversions.toDate(shown) == *date, "a date is read as what it was written from");
    const std::string iso = Conversions::FormatDateIso(*date);
    require(conversions.toDate(iso) == *date, "a date of XML is read as the same day");
  }
  if (const auto time = readOrNone([&] { return conversions.toTime(text); })) {
    const TimeOfDay minutes{time->hour, time->minute, 0};
    const std::string shown = conversions.locale().shortTime(minutes);
    require(conversions.toTime(shown) == minutes, "a time is read as what it was written from");
    require(conversions.toTime(Conversions::FormatTimeHm(minutes)) == minutes,
            "a time of XML is read as the same");
  }
}

}  // namespace

void packageReferences(std::string_view bytes) {
  // Texts come from fields and from XML, and both are UTF-8.
  if (!isUtf8(bytes)) return;
  for (test::TestEditor& desk : editors()) {
    checkTableOfReferences(desk, bytes);
    checkXmlOfReferences(desk, bytes);
    GetPackedQuantity(desk.editor, bytes);
    const std::string kept = RemoveOldPackRef(desk.editor, bytes, {"2", "17"});
    require(RemoveOldPackRef(desk.editor, kept, {"2", "17"}) == kept,
            "references that went don't go again");
    desk.face.takeBoxes();
  }
}

void customsNumber(std::string_view bytes) {
  if (!isUtf8(bytes)) return;
  for (test::TestEditor& desk : editors()) {
    const CustomsNumberFields fields = SplitCDN(desk.editor, bytes);
    const std::string joined = JoinCDN(fields[0], fields[1], fields[2], fields[3]);
    if (!joined.empty() && !trimmed(fields[3]).empty()) {
      require(joined == bytes, "a customs number of four fields comes back");
    }
    if (!joined.empty()) {
      require(JoinCDN(fields[0], fields[1], fields[2], "") ==
                  joined.substr(
                      0, joined.size() - (trimmed(fields[3]).empty() ? 0 : fields[3].size() + 1)),
              "field 4 can be left out");
    }
    faultyCustomsNumberField(desk.editor, bytes);
    const Conversions& conversions = desk.editor.conversions;
    for (const int width : {8, 7}) {
      const std::string padded = PadCDNPart(conversions, fields[0], width);
      require(PadCDNPart(conversions, padded, width) == padded, "what is padded stays as it is");
    }
    desk.face.takeBoxes();
  }
}

void numbersAndDates(std::string_view bytes) {
  if (!isUtf8(bytes)) return;
  for (test::TestEditor& desk : editors()) {
    checkNumber(desk.editor.conversions, bytes);
    checkDate(desk.editor.conversions, bytes);
  }
}

}  // namespace awizo::fuzz
