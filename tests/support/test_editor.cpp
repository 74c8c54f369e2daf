#include "support/test_editor.h"

#include <gtest/gtest.h>

namespace awizo::test {

TestSurroundings::TestSurroundings(std::string_view localeName) : locale(localeName) {}

Platform TestSurroundings::platformWith(const OtherParts& others) {
  return {.xml = others.xml != nullptr ? *others.xml : xml,
          .http = http,
          .page = page,
          .bag = bag,
          .host = host,
          .settings = others.settings != nullptr ? *others.settings : settings,
          .files = files,
          .clock = clock,
          .locale = locale,
          .screenFace = others.screenFace != nullptr ? *others.screenFace : face,
          .version = {1, 2, 3}};
}

std::unique_ptr<XmlDocument> TestSurroundings::document(std::string_view text) const {
  std::unique_ptr<XmlDocument> made = xml.createDocument();
  EXPECT_TRUE(made->loadText(text)) << text;
  return made;
}

TestEditor::TestEditor(std::string_view localeName)
    : TestSurroundings(localeName),
      session(platform),
      form(screen, clock),
      editor(platform, screen, session, form) {
  session.DecimalSeparator = locale.facts().decimalSeparator;
  session.WaitCursor = Cursor::wait;
  form.showMain();
}

void TestEditor::fill(Table& table, const std::vector<std::vector<std::string>>& rows) {
  table.setRows(rows.empty() ? 2 : static_cast<int>(rows.size()) + 1);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t column = 0; column < rows[i].size(); ++column) {
      table.setCell(static_cast<int>(i) + 1, static_cast<int>(column), rows[i][column]);
    }
  }
}

std::vector<std::string> TestEditor::row(const Table& table, int row) {
  std::vector<std::string> texts;
  for (int column = 0; column < table.columns(); ++column) texts.push_back(table.cell(row, column));
  return texts;
}

}  // namespace awizo::test
