#include "tables/totals.h"

#include "foundation/conversions_in_place.h"
#include "platform/forms/report_errors.h"
#include "tables/clear_tables.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

namespace awizo {
namespace {

/// Number in the column of the current row, 0 for an empty cell. The cell becomes the current one.
double numberOfCurrentRow(const Work& work, Table& lines, int column) {
  lines.setColumn(column);
  const std::string& text = lines.text();
  return text.empty() ? 0 : work.conversions.toDouble(text);
}

}  // namespace

void PoprawGrdSuma(Editor& editor) {
  reportErrors(editor.screen(), "Произошла ошибка в  PoprawGrdSuma()", [&] {
    const std::int16_t count = editor.session.LineCount;
    if (count < 1) return;
    ClearGrdSuma(editor);
    const Row totals = totalsRow(editor);
    totals.set(GRD_SUMA_LINE_COUNT, std::to_string(count));
    Table& lines = editor.form.grdPozycje;
    double despatched = 0;
    double netAmount = 0;
    for (int row = 1; row <= count; ++row) {
      lines.setRow(row);
      despatched += numberOfCurrentRow(editor, lines, GRD_POZ_QTY_DESPATCHED);
      netAmount += numberOfCurrentRow(editor, lines, GRD_POZ_NET_AMOUNT);
    }
    const Conversions& conversions = editor.conversions;
    totals.set(GRD_SUMA_QTY_DESPATCHED,
               conversions.FormatFixed(conversions.plainNumber(despatched), 3));
    totals.set(GRD_SUMA_NET_AMOUNT, conversions.FormatFixed(conversions.plainNumber(netAmount), 2));
  });
}

std::string MyCalculateWeight(Editor& editor) {
  AwizoForm& form = editor.form;
  form.WeightComplete = true;
  double total = 0;
  for (int row = 1; row <= editor.session.LineCount; ++row) {
    form.grdPozycje.setRow(row);
    const Row line = lineRow(editor, row);
    std::string quantity = line.cell(GRD_POZ_QTY_DESPATCHED);
    std::string weight = line.cell(GRD_POZ_WEIGHT);
    total += MyCalculatePartWeight(editor, quantity, weight);
  }
  form.lblNiepelnaWagaKom.setCaption(form.WeightComplete ? "" : "Не для всех позиций указан вес");
  return editor.conversions.plainNumber(total);
}

double MyCalculatePartWeight(Editor& editor, std::string& quantity, std::string& weight) {
  const Conversions& conversions = editor.conversions;
  try {
    const double q = conversions.toDouble(NormalizeDecimal(conversions, quantity, 3));
    const double w = conversions.toDouble(NormalizeDecimal(conversions, weight, 2));
    if (w > 0) {
      return conversions.toDouble(conversions.NormalizeDecimal(conversions.plainNumber(q * w), 3));
    }
  } catch (const RunTimeError&) {
    // A text that is no number is a line without a weight.
  }
  editor.form.WeightComplete = false;
  return 0;
}

}  // namespace awizo
