#include "service/exchanges.h"

#include "platform/text.h"

namespace awizo {
namespace {

std::unique_ptr<XmlDocument> loaded(const Xml& xml, std::string_view text) {
  std::unique_ptr<XmlDocument> document = xml.createDocument();
  document->loadText(text);
  return document;
}

}  // namespace

std::string GetBaseUrl(std::string_view url) {
  const std::size_t last = url.rfind('/');
  if (last == std::string_view::npos || last == 0) return "";
  const std::size_t lastButOne = url.rfind('/', last - 1);
  if (lastButOne == std::string_view::npos) return "";
  return std::string(url.substr(0, lastButOne + 1));
}

std::string partnersUrl(std::string_view baseUrl) {
  return joined({baseUrl, "Partners.aspx?format=xml"});
}

std::string uploadUrl(std::string_view baseUrl, std::string_view partnerUrl) {
  return joined({baseUrl, partnerUrl, "/Upload.aspx"});
}

std::string orderDataUrl(std::string_view baseUrl, std::string_view partnerUrl) {
  return joined({baseUrl, partnerUrl, "/OrderData.aspx"});
}

std::string productCatalogueUrl(std::string_view baseUrl) {
  return joined({baseUrl, "/GetDocument.aspx"});
}

std::string localizationCatalogueUrl(std::string_view baseUrl) {
  return joined({baseUrl, "Dictionary.aspx"});
}

std::unique_ptr<XmlDocument> partnerInfoRequest(const Xml& xml, std::string_view buyerIln) {
  return loaded(xml, joined({"<partners-request><partner-iln>", buyerIln,
                             "</partner-iln><info-name>INFO</info-name></partners-request>"}));
}

std::unique_ptr<XmlDocument> productCatalogueRequest(const Xml& xml, std::string_view buyerIln) {
  return loaded(xml,
                joined({"<document-request><partner-iln>", buyerIln,
                        "</partner-iln><type>PRODUCTCATALOG</type><version>VIRDV3R1</version>"
                        "<date-from></date-from><direction>OUT</direction></document-request>"}));
}

std::unique_ptr<XmlDocument> localizationCatalogueRequest(const Xml& xml,
                                                          std::string_view buyerIln) {
  return loaded(xml,
                joined({"<dictionary-request><partner-iln>", buyerIln,
                        "</partner-iln><type>PARTYINFORMATION</type><version>VIRDV0R0</version>"
                        "<date-from></date-from></dictionary-request>"}));
}

std::unique_ptr<XmlDocument> orderRequest(const Xml& xml) {
  return loaded(xml, "<order-request><deleteafter>true</deleteafter></order-request>");
}

}  // namespace awizo
