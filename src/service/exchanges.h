#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/xml.h"

namespace awizo {

/// Everything of the hosting page's address up to and including the last "/" but one; the empty
/// text for an address with fewer than two.
std::string GetBaseUrl(std::string_view url);

// Addresses of the exchanges. The doubled slash that some of them get after a base address is what
// the service expects; the partner's piece has a path form of its own.
std::string partnersUrl(std::string_view baseUrl);
std::string uploadUrl(std::string_view baseUrl, std::string_view partnerUrl);
std::string orderDataUrl(std::string_view baseUrl, std::string_view partnerUrl);
std::string productCatalogueUrl(std::string_view baseUrl);
std::string localizationCatalogueUrl(std::string_view baseUrl);

// Request documents. They are built as text without escaping, so that an ILN with a character that
// is special in XML makes an empty document.
std::unique_ptr<XmlDocument> partnerInfoRequest(const Xml& xml, std::string_view buyerIln);
std::unique_ptr<XmlDocument> productCatalogueRequest(const Xml& xml, std::string_view buyerIln);
std::unique_ptr<XmlDocument> localizationCatalogueRequest(const Xml& xml,
                                                          std::string_view buyerIln);
std::unique_ptr<XmlDocument> orderRequest(const Xml& xml);

// Where the values are in the replies.
inline constexpr std::string_view partnerInfoPath = "/partner-info-response/partner-info/info";
inline constexpr std::string_view catalogueStatusPath = "/document-response/status";
inline constexpr std::string_view cataloguePath =
    "/document-response/document-content/Document-ProductCatalogue";
inline constexpr std::string_view localizationStatusPath = "/dictionary-response/status";
inline constexpr std::string_view orderPath =
    "/receive-document-response/document-content/Document-Order";
inline constexpr std::string_view submissionStatusPath =
    "/send-document-response/submission-status";

}  // namespace awizo
