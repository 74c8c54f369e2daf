#pragma once

#include <string>

#include "support/control/test_control.h"

namespace awizo::test {

inline const std::string noReply =
    "Bі№d w SendXMLDOMRequest()!|critical|OK|The system cannot locate the resource specified.";
inline const std::string tooEarly =
    "Bі№d w SendXMLDOMRequest()!|critical|OK|"
    "The data necessary to complete this operation is not yet available.";

inline const std::string catalogueReply =
    "<document-response><status>CHANGED</status><document-content><Document-ProductCatalogue>"
    "<ProductCatalogue-Lines><Line><Line-Item><EAN>4607000000116</EAN>"
    "<ItemDescription>Чай</ItemDescription></Line-Item></Line></ProductCatalogue-Lines>"
    "</Document-ProductCatalogue></document-content></document-response>";

inline const std::string placesReply =
    "<dictionary-response><status>CHANGED</status><document-content>"
    "<Document-LocalizationsCatalog><localizations><localization><number>Склад 1</number>"
    "<iln>9520002000026</iln><address>Тула</address></localization></localizations>"
    "</Document-LocalizationsCatalog></document-content></dictionary-response>";

/// One line of an order; price and EAN as the order says them.
inline std::string orderLine(const std::string& ean, const std::string& price) {
  return "<Line><Line-Item><LineNumber>1</LineNumber><EAN>" + ean +
         "</EAN><OrderedQuantity>5</OrderedQuantity><OrderedUnitNetPrice>" + price +
         "</OrderedUnitNetPrice></Line-Item></Line>";
}

/// The reply that carries an order of these lines.
inline std::string orderReply(const std::string& lines) {
  return "<receive-document-response><document-content><Document-Order><Order-Header>"
         "<OrderNumber>Z-1</OrderNumber><OrderDate>2026-11-20</OrderDate></Order-Header>"
         "<Order-Parties><DeliveryPoint><ILN>9520002000026</ILN></DeliveryPoint></Order-Parties>"
         "<Order-Lines>" +
         lines + "</Order-Lines></Document-Order></document-content></receive-document-response>";
}

/// A control whose folder and host page are ready; the test queues the service's answers.
class OnLineStart : public ::testing::Test, public TestControl {
 protected:
  OnLineStart() {
    prepareFolder();
    preparePage();
  }

  /// Answers in the order of the exchanges, partner info first.
  void startWith(const std::string& catalogue, const std::string& places,
                 const std::string& order) {
    http.reply(partnerInfo("ООО Покупатель"));
    http.reply(catalogue);
    http.reply(places);
    http.reply(order);
    start();
  }
  bool finished() const { return form.txtGoodsIdentity.text() == "0"; }
  std::vector<std::string> addresses() const {
    std::vector<std::string> found;
    for (const SentRequest& request : http.sent) found.push_back(request.url);
    return found;
  }
};

}  // namespace awizo::test
