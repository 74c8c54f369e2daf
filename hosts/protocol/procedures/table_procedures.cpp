// Procedures on the three tables, on package references, totals and weights.

#include "hosts/protocol/procedures/control_procedures.h"
#include "session/array_remove_item.h"
#include "tables/clear_tables.h"
#include "tables/flat_index.h"
#include "tables/package_references.h"
#include "tables/totals.h"
#include "tables/upper/editing/clear_form.h"
#include "tables/upper/editing/in_table_editing.h"

namespace awizo::protocol {

namespace {

using Text = const std::string&;

/// Removes an element of an array of any values.
void removeItem(Json& array, std::int32_t index) {
  HostValue value;
  if (array.is_array()) {
    HostArray& items = value.emplace<HostArray>();
    for (const Json& item : array) items.elements.push_back(lineText(item));
  }
  ArrayRemoveItem(value, index);
  array = Json::array();
  for (const std::string& item : std::get<HostArray>(value).elements) {
    array.push_back(Json::parse(item));
  }
}

void addPackageReferences(Procedures& procedures, AwizoWysylki& control) {
  Editor& editor = control.editor;
  procedures.add("GridToString", [&] { return control.GridToString(); });
  procedures.add("StringToGrid", [&](Text text) { control.StringToGrid(text); });
  procedures.add("RemoveOldPackRef", [&](Text text, const std::vector<std::string>& delSerials) {
    return RemoveOldPackRef(editor, text, delSerials);
  });
  procedures.add("GetPackedQuantity", [&](Text text) { return GetPackedQuantity(editor, text); });
  procedures.add("PackageRefsToXml", [](Text text) { return PackageRefsToXml(text); });
  procedures.add("PackageRefsFromXml",
                 [&](Text text) { return PackageRefsFromXml(editor.platform.xml, text); });
  procedures.add("ArrayRemoveItem", removeItem);
}

void addFlatIndexes(Procedures& procedures, AwizoWysylki& control) {
  Editor& editor = control.editor;
  procedures.add("IndexGrdPozycje", [&](std::int16_t row, std::int16_t col) {
    return IndexGrdPozycje(editor, row, col);
  });
  procedures.add("IndexGrdOpak", [&](std::int16_t row, std::int16_t col) {
    return IndexGrdOpak(editor, row, col);
  });
  procedures.add("IndexGrdSuma", [&](std::int16_t row, std::int16_t col) {
    return IndexGrdSuma(editor, row, col);
  });
  procedures.add("IndexGrdPozycjeDlgDodaj", [&](std::int16_t row, std::int16_t col) {
    return control.IndexGrdPozycjeDlgDodaj(row, col);
  });
}

}  // namespace

void addTableProcedures(Procedures& procedures, AwizoWysylki& control) {
  Editor& editor = control.editor;
  addPackageReferences(procedures, control);
  addFlatIndexes(procedures, control);
  procedures.add("ClearGrdPozycje", [&] { ClearGrdPozycje(editor); });
  procedures.add("ClearGrdOpakowania", [&] { ClearGrdOpakowania(editor); });
  procedures.add("ClearGrdSuma", [&] { ClearGrdSuma(editor); });
  procedures.add("ClearForm", [&] { ClearForm(editor); });
  procedures.add("PoprawGrdSuma", [&] { PoprawGrdSuma(editor); });
  procedures.add("MyCalculateWeight", [&] { return MyCalculateWeight(editor); });
  procedures.add("MyCalculatePartWeight", [&](std::string& quantity, std::string& weight) {
    return MyCalculatePartWeight(editor, quantity, weight);
  });
  procedures.add("ClampQuantity", [&](Text text) { return ClampQuantity(editor, text); });
  procedures.add("CheckNumber", [&](Text text) { return CheckNumber(editor, text); });
}

}  // namespace awizo::protocol
