// Procedures on the document's header, its lines and their values.

#include "formats/catalogue_completion.h"
#include "formats/customs_number.h"
#include "formats/header_validation.h"
#include "formats/row_check.h"
#include "formats/saving.h"
#include "hosts/protocol/procedures/control_procedures.h"
#include "session/record/countries.h"
#include "session/record/header_panel.h"
#include "tables/set_up_tables.h"

namespace awizo::protocol {

namespace {

void addCustomsNumber(Procedures& procedures, Editor& editor) {
  procedures.add("SplitCDN", [&](Text cdn) { return SplitCDN(editor, cdn); });
  procedures.add("JoinCDN", [](Text field1, Text field2, Text field3, Text field4) {
    return JoinCDN(field1, field2, field3, field4);
  });
  procedures.add("FormatCDNDate", [&](Date date) { return FormatCDNDate(editor, date); });
  procedures.add("IsCDNPartNumeric",
                 [&](Text text) { return IsCDNPartNumeric(editor.conversions, text); });
  procedures.add("PadCDNPart", [&](Text text, std::int16_t width) {
    return PadCDNPart(editor.conversions, text, width);
  });
}

}  // namespace

void addDocumentProcedures(Procedures& procedures, AwizoWysylki& control) {
  Editor& editor = control.editor;
  addCustomsNumber(procedures, editor);
  procedures.add("symbolKraj",
                 [](std::int16_t index, Text typedText) { return symbolKraj(index, typedText); });
  procedures.add("indexKraj", [](Text code) { return indexKraj(code); });
  procedures.add("UstawNaglowki", [&] { UstawNaglowki(editor); });
  procedures.add("SetHeader", [&] { SetHeader(editor); });
  procedures.add("ValidateHeader", [&] { return ValidateHeader(editor); });
  procedures.add("CheckGridRow", [&](std::int16_t row) { return CheckGridRow(editor, row); });
  procedures.add("RepaintValidRows", [&] { RepaintValidRows(editor); });
  procedures.add("CountValidRows", [&] { CountValidRows(editor); });
  procedures.add("CheckAllPacked", [&] { CheckAllPacked(editor); });
  procedures.add("CompleteFromLocalizationCatalog",
                 [&](Text iln) { CompleteFromLocalizationCatalog(editor, iln); });
}

}  // namespace awizo::protocol
