#include "hosts/desktop/window/document_content.h"

#include "foundation/date_text.h"

namespace awizo::desktop {
namespace {

/// No text of the user's holds it.
constexpr char separator = '\0';

void add(std::string& content, std::string_view text) {
  content += text;
  content += separator;
}

void addHeader(std::string& content, const AwizoForm& form) {
  for (const TextField* field :
       {&form.txtNrAwiza, &form.txtNrZam, &form.txtCodeByBuyer, &form.txtGoodsIdentity}) {
    add(content, field->text());
  }
  for (const DatePicker* picker :
       {&form.txtDataAwiza, &form.dpDataZam, &form.txtEstimatedDeliveryDate}) {
    add(content, picker->date() ? isoDate(*picker->date()) : "");
  }
  for (const TimePicker* picker : {&form.txtDespatchAdviceTime, &form.txtEstimatedDeliveryTime}) {
    add(content, picker->time() ? hourMinute(*picker->time()) : "");
  }
  add(content, form.cboxPackageDescription.text());
}

void addTable(std::string& content, const Table& table, int rowsInUse) {
  for (int row = 1; row <= rowsInUse && row < table.rows(); ++row) {
    for (int column = 0; column < table.columns(); ++column) add(content, table.cell(row, column));
  }
  content += separator;
}

}  // namespace

std::string documentContent(const Editor& editor) {
  std::string content;
  addHeader(content, editor.form);
  addTable(content, editor.form.grdPozycje, editor.session.LineCount);
  addTable(content, editor.form.grdOpakowania, editor.session.IloscPozycjiOpak);
  const TextField& edited = editor.form.txtEdycja;
  const Table& lines = editor.form.grdPozycje;
  if (edited.visible() && edited.text() != lines.cell(lines.row(), lines.column())) {
    add(content, edited.text());
  }
  return content;
}

}  // namespace awizo::desktop
