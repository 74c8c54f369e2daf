// What the editor writes, against the schemas.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo/replies.h"
#include "formats/despatch_advice_writer.h"
#include "service/exchanges.h"
#include "support/cells.h"
#include "support/files/files.h"
#include "support/schemas/schema.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using testing::IsEmpty;

constexpr int mostLines = 1423;
constexpr int mostPackages = 2183;

/// An editor with a document of this many lines and packages. Packages lie in packages, three
/// levels and more deep, and each line in two of them.
class WrittenDocument : public testing::TestWithParam<const char*>, public TestEditor {
 protected:
  WrittenDocument() : TestEditor(GetParam()) {
    form.txtNrAwiza.setText("ТН/1");
    form.txtDataAwiza.setDate(makeDate(2026, 11, 21));
    form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 25));
    form.txtNrZam.setText("ЗК-1");
    form.lblILNKupWart.setCaption("9520002000019");
    form.lblILNSprzedWart.setCaption("9520001000010");
  }

  std::string decimal(std::string_view whole, std::string_view fraction) const {
    return std::string(whole).append(session.DecimalSeparator).append(fraction);
  }

  std::vector<std::string> package(int row) const {
    std::vector<std::string> cells = packageCells();
    cells[GRD_OPAK_SERIAL] = std::to_string(row + 1);
    cells[GRD_OPAK_PARENT_SERIAL] = std::to_string(row / 2 + 1);
    cells[GRD_OPAK_TYPE] = row == 1 ? "09" : "201";
    cells[GRD_OPAK_SERIAL_NUMBER] = "354107380000001051";
    cells[GRD_OPAK_LOCATION_ILN] = "9520002000026";
    cells[GRD_OPAK_WEIGHT] = decimal("12", "500");
    return cells;
  }

  std::vector<std::string> line(int row, int packages) const {
    std::vector<std::string> cells = lineCells();
    cells[GRD_POZ_LP] = cells[GRD_POZ_ORDER_LINE] = std::to_string(row);
    cells[GRD_POZ_EAN] = "4607000000116";
    cells[GRD_POZ_NAME] = "Чай & <кофе>";
    cells[GRD_POZ_QTY_ORDERED] = cells[GRD_POZ_QTY_DESPATCHED] = decimal("10", "000");
    cells[GRD_POZ_PRICE] = decimal("12", "50");
    cells[GRD_POZ_NET_AMOUNT] = decimal("125", "00");
    cells[GRD_POZ_TAX_RATE] = "18";
    cells[GRD_POZ_COUNTRY] = "RU";
    cells[GRD_POZ_CDN] = "П2345678/010108/1234567/1";
    const std::string half = decimal("5", "000");
    cells[GRD_POZ_PACK_REFS] = std::to_string(row % packages + 2) + "@Коробка@1@" + half + "$" +
                               std::to_string((row + 1) % packages + 2) + "@Поддон@2@" + half;
    return cells;
  }

  void fillTables(int lines, int packages) {
    std::vector<std::vector<std::string>> rows;
    for (int row = 1; row <= packages; ++row) rows.push_back(package(row));
    fill(form.grdOpakowania, rows);
    session.IloscPozycjiOpak = static_cast<std::int16_t>(packages);
    rows.clear();
    for (int row = 1; row <= lines; ++row) rows.push_back(line(row, packages));
    fill(form.grdPozycje, rows);
    session.LineCount = static_cast<std::int16_t>(lines);
  }

  void expectFits() {
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(editor);
    ASSERT_TRUE(document);
    const std::string bytes = document->fileBytes();
    for (const char* schema : schemas) {
      EXPECT_THAT(Schema(schema).problemsOf(bytes), IsEmpty()) << schema;
    }
  }

  std::vector<const char*> schemas{"despatch-advice-written", "despatch-advice-sound",
                                   "despatch-advice-read"};
};

INSTANTIATE_TEST_SUITE_P(BothLocales, WrittenDocument, testing::Values("ru_RU", "en_US"));

TEST_P(WrittenDocument, FitsWithPackagesInPackagesAndLinesInThem) {
  fillTables(3, 9);
  expectFits();
}

TEST_P(WrittenDocument, FitsWithEveryOptionalValueOfTheHeader) {
  fillTables(1, 1);
  form.txtDespatchAdviceTime.setTime(TimeOfDay{9, 5, 0});
  form.txtEstimatedDeliveryTime.setTime(TimeOfDay{23, 59, 0});
  form.dpDataZam.setDate(makeDate(2026, 2, 28));
  form.txtCodeByBuyer.setText("417");
  form.DeliveryILN = "9520002001016";
  expectFits();
}

TEST_P(WrittenDocument, FitsAtTheLimitsOfTheTables) {
  fillTables(mostLines, mostPackages);
  expectFits();
}

/// The reader wants lines, so that such a document isn't read back whole.
TEST_P(WrittenDocument, FitsWithoutLines) {
  schemas = {"despatch-advice-written", "despatch-advice-sound"};
  expectFits();
}

TEST(WrittenRequests, Fit) {
  const TestSurroundings around;
  const Schema schema("exchanges");
  const auto expectFits = [&](const std::unique_ptr<XmlDocument>& request) {
    EXPECT_THAT(schema.problemsOf(request->node().xml()), IsEmpty());
  };
  expectFits(partnerInfoRequest(around.xml, "9520002000019"));
  expectFits(productCatalogueRequest(around.xml, "9520002000019"));
  expectFits(localizationCatalogueRequest(around.xml, "9520002000019"));
  expectFits(orderRequest(around.xml));
}

TEST(RepliesOfTheDemoService, Fit) {
  const TestSurroundings around;
  const Schema schema("exchanges");
  demo::Replies replies(projectFolder() / "demo/data");
  const auto text = [](const std::unique_ptr<XmlDocument>& request) {
    return request->node().xml();
  };
  const std::string buyer = "9520002000019";
  const auto expectFits = [&](const std::string& reply) {
    EXPECT_THAT(schema.problemsOf(reply), IsEmpty());
  };
  expectFits(replies.partnerInfo(text(partnerInfoRequest(around.xml, buyer))));
  expectFits(replies.productCatalogue(text(productCatalogueRequest(around.xml, buyer))));
  expectFits(replies.productCatalogue(text(productCatalogueRequest(around.xml, "1"))));
  expectFits(replies.deliveryPlaces(text(localizationCatalogueRequest(around.xml, buyer))));
  expectFits(replies.deliveryPlaces(text(localizationCatalogueRequest(around.xml, "1"))));
  expectFits(replies.order(text(orderRequest(around.xml))));
  // The order was handed out: nothing is waiting now.
  expectFits(replies.order(text(orderRequest(around.xml))));
  expectFits(demo::submissionReply("OK"));
}

}  // namespace
}  // namespace awizo::test
