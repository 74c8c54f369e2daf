#include "session/document_content.h"

#include "session/record/header_fields.h"

namespace awizo {
namespace {

/// No text that a user enters contains it.
constexpr char separator = '\0';

void add(std::string& content, std::string_view text) {
  content += text;
  content += separator;
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
  for (const HeaderField& field : headerFields(editor.form)) add(content, valueText(field));
  addTable(content, editor.form.grdPozycje, editor.session.LineCount);
  addTable(content, editor.form.grdOpakowania, editor.session.IloscPozycjiOpak);
  const TextField& edited = editor.form.txtEdycja;
  const Table& lines = editor.form.grdPozycje;
  if (edited.visible() && edited.text() != lines.cell(lines.row(), lines.column())) {
    add(content, edited.text());
  }
  return content;
}

}  // namespace awizo
