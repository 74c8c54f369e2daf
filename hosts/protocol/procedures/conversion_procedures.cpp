#include "foundation/conversions_in_place.h"
#include "hosts/protocol/procedures/control_procedures.h"

namespace awizo::protocol {

void addConversionProcedures(Procedures& procedures, Editor& editor) {
  const Conversions& conversions = editor.conversions;
  procedures.add("GetDecimalSeparator", [&] { return conversions.GetDecimalSeparator(); });
  procedures.add("CommaToDot", [](Text text) { return Conversions::CommaToDot(text); });
  procedures.add("DotToComma", [](Text text) { return Conversions::DotToComma(text); });
  procedures.add("FormatFixed", [&](Text text, std::int16_t decimals) {
    return conversions.FormatFixed(text, decimals);
  });
  procedures.add("NormalizeDecimal", [&](std::string& text, std::int16_t decimals) {
    return NormalizeDecimal(conversions, text, decimals);
  });
  procedures.add("FormatForXml", [&](std::string& text, std::int16_t decimals) {
    return FormatForXml(conversions, text, decimals);
  });
  procedures.add("MyDouble", [&](std::string& text) { return MyDouble(conversions, text); });
  procedures.add("MultiplyToAmount", [&](Text quantity, Text price) {
    return conversions.MultiplyToAmount(quantity, price);
  });
  procedures.add("FormatDateIso", [](Date date) { return Conversions::FormatDateIso(date); });
  procedures.add("FormatTimeHm", [](TimeOfDay time) { return Conversions::FormatTimeHm(time); });
  procedures.add("AddPeriodToDate", [&](Date date, Text count, Text code) {
    return conversions.AddPeriodToDate(date, count, code);
  });
}

}  // namespace awizo::protocol
