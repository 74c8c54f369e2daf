// What docs/integration.md shows: a service that replies as described there gets the requests shown
// there.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/files/files.h"
#include "support/schemas/schema.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

namespace fs = std::filesystem;

using testing::IsEmpty;

/// The XML examples of the page: request and reply of each exchange in turn.
std::vector<std::string> examples() {
  const std::string page = projectFile("docs/integration.md");
  const std::string open = "```xml\n";
  std::vector<std::string> found;
  for (std::size_t at = page.find(open); at != std::string::npos; at = page.find(open, at)) {
    at += open.size();
    found.push_back(page.substr(at, page.find("```", at) - at));
  }
  return found;
}

/// The XML of one element within an example.
std::string within(const std::string& example, std::string_view path) {
  const auto document = Libxml2().createDocument();
  EXPECT_TRUE(document->loadText(example));
  const XmlNode found = document->node().selectSingle(path);
  EXPECT_TRUE(found) << path;
  return found ? found.xml() : "";
}

enum Example {
  partner,
  partnerReply,
  catalogue,
  catalogueReply,
  places,
  placesReply,
  order,
  orderReply,
  advice,
  adviceReply,
  count
};

class IntegrationPage : public testing::Test {
 protected:
  IntegrationPage() {
    EXPECT_EQ(shown.size(), static_cast<std::size_t>(count));
    fs::create_directory(data);
    writeFile(data / "partner-info.xml", shown.at(partnerReply));
    writeFile(data / "catalogue.xml",
              within(shown.at(catalogueReply), "//Document-ProductCatalogue"));
    writeFile(data / "delivery-places.xml",
              within(shown.at(placesReply), "//Document-LocalizationsCatalog"));
    writeFile(data / "order.xml", within(shown.at(orderReply), "//Document-Order"));
  }

  const std::vector<std::string> shown = examples();
  const Supplier supplier;
  const fs::path data = supplier.place.documents() / "data";
};

TEST_F(IntegrationPage, ShowsTheRequestsThatTheEditorMakesOfItsReplies) {
  const DemoService service(supplier.place.posted(), {"--data", data.string()});
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  completeHeader(editor, "ТН-1");
  editor.click("btnDodajOpak");
  editor.choose("DlgSzczegoly.cboxPackageType", 0);
  editor.type("DlgSzczegoly.txtPackageDesc", "Паллета 1");
  editor.type("DlgSzczegoly.txtPackageWeight", "42,5");
  editor.type("DlgSzczegoly.cboxILNLokalizacji", "9520002001023");
  editor.type("DlgSzczegoly.txtSerialNumberN", "395200010000000011");
  editor.click("DlgSzczegoly.btnDodaj");
  packLine(editor, 1, "Паллета 1", "24");
  editor.click("btnPrzeslij");
  editor.answerAll();

  const Json requests = service.requests();
  ASSERT_EQ(requests.size(), 5U);
  for (std::size_t i = 0; i < requests.size(); ++i) {
    EXPECT_EQ(within(requests[i]["body"], "/*"), within(shown.at(2 * i), "/*"));
  }
  EXPECT_EQ(editor.finish(), 0);
}

TEST_F(IntegrationPage, ShowsRequestsAndRepliesOfTheSchemas) {
  const Schema exchanges("exchanges");
  for (int i = 0; i < count; ++i) {
    if (i == advice) continue;
    EXPECT_THAT(exchanges.problemsOf(shown.at(static_cast<std::size_t>(i))), IsEmpty());
  }
  EXPECT_THAT(Schema("despatch-advice-sound").problemsOf(shown.at(advice)), IsEmpty());
  EXPECT_THAT(Schema("order-sound").problemsOf(within(shown.at(orderReply), "//Document-Order")),
              IsEmpty());
}

}  // namespace
}  // namespace awizo::test
