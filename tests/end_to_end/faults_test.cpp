// A service that is not there, hangs up or answers nonsense: which boxes the user sees at each
// exchange, and what the editor is then.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Boxes = std::vector<std::string>;

/// The boxes for a reply that doesn't come: for the send, and for reading the reply.
Boxes brokenOff() {
  return {"Bі№d w SendXMLDOMRequest()!|critical|The download of the specified resource has failed.",
          "Bі№d w SendXMLDOMRequest()!|critical|The data necessary to complete this operation is "
          "not yet available."};
}

struct Fault {
  const char* kind;
  bool breaksOff;  ///< no whole reply comes
};

std::ostream& operator<<(std::ostream& out, const Fault& fault) { return out << fault.kind; }

class FaultTest : public testing::TestWithParam<Fault> {
 protected:
  DemoService serviceWith(const std::string& exchange) {
    return DemoService(supplier.place.posted(),
                       {"--fault", exchange + "=" + std::string(GetParam().kind)});
  }
  /// The boxes of the fault itself, and those that follow from it.
  Boxes boxesWith(const Boxes& more) const {
    Boxes all = GetParam().breaksOff ? brokenOff() : Boxes{};
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }

  Supplier supplier;
};

INSTANTIATE_TEST_SUITE_P(Kinds, FaultTest,
                         testing::Values(Fault{"drop", true}, Fault{"cut", true},
                                         Fault{"garbage", false}, Fault{"empty", false},
                                         Fault{"status500", false}),
                         [](const auto& test) { return std::string(test.param.kind); });

TEST_P(FaultTest, OfPartnerInfoIsFatal) {
  const DemoService service = serviceWith("partner-info");
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  EXPECT_EQ(editor.answerAll(), boxesWith({"VIRD|critical|Неправильный формат XML партнёр инфо."}));
  EXPECT_EQ(editor.get("control")["Enabled"], false);
  editor.refused({{"do", "click"}, {"on", "btnDodajOpak"}});
  EXPECT_EQ(editor.finish(), 0);
}

TEST_P(FaultTest, OfTheProductCatalogueLeavesTheOrderAsItCame) {
  const DemoService service = serviceWith("catalogue");
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  EXPECT_EQ(editor.answerAll(), boxesWith({}));
  EXPECT_EQ(editor.get("session")["ProductCatalogLoaded"], false);
  EXPECT_EQ(editor.get("session")["LineCount"], 25);
  EXPECT_EQ(editor.cellText("grdPozycje", 2, 2), "");
  EXPECT_EQ(editor.get("control")["Enabled"], true);
}

TEST_P(FaultTest, OfTheDeliveryPlacesLeavesTheAddressEmpty) {
  const DemoService service = serviceWith("places");
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  EXPECT_EQ(editor.answerAll(), boxesWith({}));
  EXPECT_EQ(editor.get("session")["LocalizationsLoaded"], false);
  EXPECT_EQ(editor.caption("lblILNMiejscaDostValue"), "9520002001016");
  EXPECT_EQ(editor.caption("lblNazwaMiejscaDostawy"), "");
}

TEST_P(FaultTest, OfTheOrderStartsWithAnEmptyDocument) {
  const DemoService service = serviceWith("order");
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  EXPECT_EQ(editor.answerAll(), boxesWith({}));
  EXPECT_EQ(editor.get("session")["LineCount"], 0);
  EXPECT_EQ(editor.get("control")["OrderAnswer"], false);
  EXPECT_EQ(editor.get("txtDataAwiza")["date"], today);
  EXPECT_EQ(editor.text("txtGoodsIdentity"), "0");
}

TEST_P(FaultTest, OfTheSendingKeepsTheNumberForAnotherTry) {
  DemoService service(supplier.place.posted());
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  completeHeader(editor);
  service.setFaults("upload=" + std::string(GetParam().kind));
  editor.click("btnPrzeslij");
  editor.answer("Yes");
  EXPECT_EQ(editor.answerAll(), boxesWith({"VIRD|critical|Произошла ошибка:-1"}));
  EXPECT_EQ(editor.get("control")["LastSentNumber"], "");
  EXPECT_EQ(editor.get("control")["Enabled"], true);
  EXPECT_EQ(editor.get("cursor"), "default");

  service.setFaults("upload=none");
  editor.click("btnPrzeslij");
  editor.answer("Yes");
  EXPECT_THAT(editor.answerAll(), ElementsAre("VIRD|information|Документ отправлен."));
}

TEST(Service, ThatIsSlowAtEveryExchangeIsWaitedFor) {
  Supplier supplier;
  DemoService service(supplier.place.posted());
  service.setFaults(
      "partner-info=slow:200\ncatalogue=slow:200\nplaces=slow:200\norder=slow:200\n"
      "upload=slow:200");
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_EQ(editor.get("session")["LineCount"], 25);
  EXPECT_EQ(editor.get("session")["ProductCatalogLoaded"], true);
  EXPECT_EQ(editor.get("session")["LocalizationsLoaded"], true);
  completeHeader(editor);
  editor.click("btnPrzeslij");
  editor.answer("Yes");
  EXPECT_THAT(editor.answerAll(), ElementsAre("VIRD|information|Документ отправлен."));
}

TEST(Service, ThatIsGoneWhenTheDocumentIsSentGivesItsBoxesAndTheControlGoesOn) {
  Supplier supplier;
  auto service = std::make_unique<DemoService>(supplier.place.posted());
  Conversation editor = supplier.startOnLine(*service);
  editor.show();
  completeHeader(editor);
  service.reset();
  editor.click("btnPrzeslij");
  editor.answer("Yes");
  EXPECT_THAT(
      editor.answerAll(),
      ElementsAre("Bі№d w SendXMLDOMRequest()!|critical|The system cannot locate the resource "
                  "specified.",
                  "Bі№d w SendXMLDOMRequest()!|critical|The data necessary to complete this "
                  "operation is not yet available.",
                  "VIRD|critical|Произошла ошибка:-1"));
  EXPECT_EQ(editor.get("control")["LastSentNumber"], "");
  EXPECT_EQ(editor.get("control")["Enabled"], true);
  EXPECT_EQ(editor.get("session")["LineCount"], 25);
}

TEST(Service, ThatIsNotThereGivesItsBoxesForEachStep) {
  Supplier supplier;
  std::string url;
  {
    const DemoService gone(supplier.place.posted());
    url = gone.pageUrl();
  }
  Conversation editor =
      supplier.startOffLine({"--property", "OnLine=", "--page-url", url, "--cookie", ""});
  editor.show();
  EXPECT_THAT(
      editor.answerAll(),
      ElementsAre("Bі№d w SendXMLDOMRequest()!|critical|The system cannot locate the resource "
                  "specified.",
                  "Bі№d w SendXMLDOMRequest()!|critical|The data necessary to complete this "
                  "operation is not yet available.",
                  "VIRD|critical|Неправильный формат XML партнёр инфо."));
  EXPECT_EQ(editor.get("control")["Enabled"], false);
}

TEST(Service, GetsAnEmptyCookieAsAnEmptyHeader) {
  Supplier supplier;
  const DemoService service(supplier.place.posted());
  Conversation editor = supplier.startOnLine(service, {"--cookie", ""});
  editor.show();
  for (const Json& request : service.requests()) EXPECT_EQ(request["cookie"], "");
  EXPECT_EQ(service.requests().size(), 4U);
}

TEST(Order, IsHandedOutOnce) {
  Supplier supplier;
  const DemoService service(supplier.place.posted());
  Conversation first = supplier.startOnLine(service);
  first.show();
  EXPECT_EQ(first.get("session")["LineCount"], 25);
  EXPECT_EQ(first.finish(), 0);
  Conversation second = supplier.startOnLine(service);
  second.show();
  EXPECT_THAT(second.answerAll(), IsEmpty());
  EXPECT_EQ(second.get("session")["LineCount"], 0);
}

}  // namespace
}  // namespace awizo::test
