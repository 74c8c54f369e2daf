#pragma once

#include <optional>

#include "formats/despatch_advice_writer.h"
#include "support/cells.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {

inline constexpr const char* emptyConsignment =
    "<DespatchAdvice-Consignment><Packing-Sequence><PackageId>1</PackageId></Packing-Sequence>"
    "</DespatchAdvice-Consignment>";

/// A document with the least header that validates.
struct WrittenAdvice : ::testing::Test {
  TestEditor test;
  AwizoForm& form = test.form;

  WrittenAdvice() {
    form.txtNrAwiza.setText("WZ-1");
    form.txtDataAwiza.setDate(makeDate(2026, 11, 21));
    form.txtDespatchAdviceTime.setTime(std::nullopt);
    form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 22));
    form.txtEstimatedDeliveryTime.setTime(std::nullopt);
    form.txtNrZam.setText("ORD-7");
    form.dpDataZam.setDate(std::nullopt);
    form.lblILNKupWart.setCaption("9520002000019");
    form.lblILNSprzedWart.setCaption("9520001000010");
  }

  static std::vector<std::string> line(const std::string& number) {
    std::vector<std::string> cells = lineCells();
    cells[GRD_POZ_LP] = number;
    cells[GRD_POZ_EAN] = "5901234123457";
    cells[GRD_POZ_QTY_DESPATCHED] = "1";
    return cells;
  }

  static std::vector<std::string> package(const std::string& serial, const std::string& parent) {
    std::vector<std::string> cells = packageCells();
    cells[GRD_OPAK_SERIAL] = serial;
    cells[GRD_OPAK_PARENT_SERIAL] = parent;
    return cells;
  }

  void setLines(const std::vector<std::vector<std::string>>& lines) {
    TestEditor::fill(form.grdPozycje, lines);
    test.session.LineCount = static_cast<std::int16_t>(lines.size());
  }

  void setPackages(const std::vector<std::vector<std::string>>& packages) {
    TestEditor::fill(form.grdOpakowania, packages);
    test.session.IloscPozycjiOpak = static_cast<std::int16_t>(packages.size());
  }

  std::string written() {
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
    EXPECT_TRUE(test.face.boxes().empty()) << describe(test.face.boxes())[0];
    return document ? document->fileBytes() : "";
  }

  /// The text of the first node that the path selects, "(none)" without one.
  std::string value(std::string_view path) {
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
    if (!document) return "(no document)";
    const XmlNode node = document->node().selectSingle(path);
    return node ? node.text() : "(none)";
  }

  /// The numbers of the lines in the document's order.
  std::vector<std::string> lineNumbers() {
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
    std::vector<std::string> numbers;
    for (const XmlNode& number : document->node().selectAll(
             "/Document-DespatchAdvice/DespatchAdvice-Lines/Line/Line-Item/LineNumber")) {
      numbers.push_back(number.text());
    }
    return numbers;
  }

  void expectFailure(const std::string& step, const std::string& description) {
    EXPECT_EQ(MakeDesAdv(test.editor), nullptr);
    EXPECT_THAT(describe(test.face.takeBoxes()),
                ::testing::ElementsAre("Произошла ошибка в MakeDesAdv()" + step + "|critical|OK|" +
                                       description));
  }
};

}  // namespace awizo::test
