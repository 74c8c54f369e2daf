#include "desk/line_words.h"

#include <array>
#include <string_view>

#include "formats/row_check.h"
#include "platform/narrow.h"
#include "platform/run_time_error.h"
#include "platform/text.h"
#include "tables/columns/columns.h"

namespace awizo {
namespace {

bool holdsLine(const Editor& editor, int row) {
  return row >= 1 && row <= editor.session.LineCount && row < editor.form.grdPozycje.rows();
}

/// Beyond the last row that the cell index reaches there is no fault to show.
std::optional<RowFault> faultOf(const Editor& editor, int row) {
  try {
    return firstFaultToTell(editor, narrow16(row));
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

/// Of the fields of a customs number, by their numbers.
constexpr std::array<std::string_view, 5> customsNumberWords{
    "",
    "первая часть номера ГТД — не 8 цифр",
    "дата в номере ГТД — не 6 цифр",
    "третья часть номера ГТД — не 7 цифр",
    "последняя часть номера ГТД длиннее 3 знаков",
};

std::string_view wordsOf(const RowFault& fault, bool isEmpty) {
  switch (fault.column) {
    case GRD_POZ_EAN:
      return isEmpty ? "нет EAN" : "EAN не число";
    case GRD_POZ_QTY_ORDERED:
      return "заказанное количество не число";
    case GRD_POZ_QTY_DESPATCHED:
      return isEmpty ? "нет отгруженного количества" : "отгруженное количество не число";
    case GRD_POZ_PRICE:
      return "цена не число";
    case GRD_POZ_NET_AMOUNT:
      return "сумма не число";
    case GRD_POZ_CDN:
      return customsNumberWords[static_cast<std::size_t>(fault.customsField)];
    default:
      return fault.name;
  }
}

/// What follows a long name must still be seen.
std::string shortened(const std::string& name) {
  constexpr std::size_t longest = 60;
  if (countCharacters(name) <= longest) return name;
  return std::string(firstCharacters(name, longest)) + "…";
}

}  // namespace

std::string shortNumber(const Conversions& conversions, const std::string& text) {
  if (!conversions.isNumeric(text)) return text;
  try {
    return conversions.plainNumber(conversions.toDouble(text));
  } catch (const RunTimeError&) {
    return text;
  }
}

std::string unpackedQuantity(const Editor& editor, int row) {
  const Table& lines = editor.form.grdPozycje;
  const Conversions& conversions = editor.conversions;
  const std::string& despatched = lines.cell(row, GRD_POZ_QTY_DESPATCHED);
  const std::string& packed = lines.cell(row, GRD_POZ_PACKED_QTY);
  if (!conversions.isNumeric(despatched) || !conversions.isNumeric(packed)) return "";
  const double rest = conversions.MyDouble(despatched) - conversions.MyDouble(packed);
  return shortNumber(conversions, conversions.FormatFixed(conversions.plainNumber(rest), 3));
}

std::string lineFaultWords(const Editor& editor, int row) {
  if (!holdsLine(editor, row)) return "";
  const std::optional<RowFault> fault = faultOf(editor, row);
  if (!fault) return "";
  return std::string(wordsOf(*fault, editor.form.grdPozycje.cell(row, fault->column).empty()));
}

std::string lineWords(const Editor& editor, int row) {
  if (!holdsLine(editor, row)) return "";
  const Table& lines = editor.form.grdPozycje;
  std::string words;
  const auto add = [&](std::string_view name, const std::string& value) {
    if (value.empty()) return;
    if (!words.empty()) words += " · ";
    words.append(name).append(value);
  };
  const auto number = [&](int column) {
    return shortNumber(editor.conversions, lines.cell(row, column));
  };
  add("", lines.cell(row, GRD_POZ_LP));
  add("", shortened(lines.cell(row, GRD_POZ_NAME)));
  add("заказано ", number(GRD_POZ_QTY_ORDERED));
  add("отгружено ", number(GRD_POZ_QTY_DESPATCHED));
  add("упаковано ", number(GRD_POZ_PACKED_QTY));
  add("осталось ", unpackedQuantity(editor, row));
  add("", lineFaultWords(editor, row));
  return words;
}

}  // namespace awizo
