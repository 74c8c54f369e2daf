#include "demo/replies.h"

#include <fstream>
#include <sstream>
#include <utility>
#include <vector>

#include "demo/xml_text.h"

namespace awizo::demo {

namespace {

constexpr std::string_view declaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";

std::string element(std::string_view name, std::string_view content) {
  std::string result;
  result.reserve(content.size() + 2 * name.size() + 5);
  result.append("<").append(name).append(">").append(content);
  result.append("</").append(name).append(">");
  return result;
}

std::string reply(std::string_view root, std::string_view content) {
  return std::string(declaration) + element(root, content);
}

/// A path in a request and the text that must be there.
using Expectation = std::pair<const char*, std::string>;

/// What is wrong with a request, or the empty text.
std::string complaintAbout(std::string_view request, const std::vector<Expectation>& expectations) {
  try {
    const XmlDocument document(request);
    for (const auto& [path, expected] : expectations) {
      const auto found = document.textAt(path);
      if (!found) return "В запросе нет " + std::string(path);
      if (*found != expected) {
        return "В запросе " + std::string(path) + " равно '" + *found + "', а не '" + expected +
               "'";
      }
    }
    return {};
  } catch (const XmlError&) {
    return "Запрос не является документом XML";
  }
}

}  // namespace

std::string Replies::partnerInfo(std::string_view request) const {
  std::string complaint =
      complaintAbout(request, {{"/partners-request/partner-iln", ownPartnerIln().value_or("")},
                               {"/partners-request/info-name", "INFO"}});
  const auto info = dataFile("partner-info.xml");
  if (complaint.empty() && !info) complaint = "Сведений о партнёре нет";
  if (complaint.empty()) return *info;
  return reply("partner-info-response", element("description", escapedForXml(complaint)));
}

std::string Replies::productCatalogue(std::string_view request) const {
  return catalogueReply(
      "document-response", "catalogue.xml",
      complaintAbout(request, {{"/document-request/partner-iln", ownPartnerIln().value_or("")},
                               {"/document-request/type", "PRODUCTCATALOG"},
                               {"/document-request/version", "VIRDV3R1"},
                               {"/document-request/date-from", ""},
                               {"/document-request/direction", "OUT"}}));
}

std::string Replies::deliveryPlaces(std::string_view request) const {
  return catalogueReply(
      "dictionary-response", "delivery-places.xml",
      complaintAbout(request, {{"/dictionary-request/partner-iln", ownPartnerIln().value_or("")},
                               {"/dictionary-request/type", "PARTYINFORMATION"},
                               {"/dictionary-request/version", "VIRDV0R0"},
                               {"/dictionary-request/date-from", ""}}));
}

std::string Replies::catalogueReply(const char* root, const char* file,
                                    const std::string& refusal) const {
  const auto content = refusal.empty() ? dataFile(file) : std::nullopt;
  if (content) {
    return reply(root, element("status", "CHANGED") +
                           element("document-content", withoutDeclaration(*content)));
  }
  const std::string description = refusal.empty() ? "Каталога нет" : refusal;
  return reply(root,
               element("status", "ERROR") + element("description", escapedForXml(description)));
}

std::string Replies::order(std::string_view request) {
  const std::lock_guard lock(orderMutex_);
  const auto order = orderHandedOut_ ? std::nullopt : dataFile("order.xml");
  if (order && complaintAbout(request, {{"/order-request/deleteafter", "true"}}).empty()) {
    orderHandedOut_ = true;
  }
  return reply("receive-document-response",
               element("document-content", order ? withoutDeclaration(*order) : ""));
}

void Replies::putOrderBack() {
  const std::lock_guard lock(orderMutex_);
  orderHandedOut_ = false;
}

std::optional<std::string> Replies::dataFile(const char* name) const {
  std::ifstream file(dataFolder_ / name, std::ios::binary);
  if (!file) return std::nullopt;
  std::ostringstream content;
  content << file.rdbuf();
  return std::move(content).str();
}

std::optional<std::string> Replies::ownPartnerIln() const {
  const auto info = dataFile("partner-info.xml");
  if (!info) return std::nullopt;
  try {
    return XmlDocument(*info).textAt("/partner-info-response/partner-info/info/iln");
  } catch (const XmlError&) {
    return std::nullopt;
  }
}

std::string submissionReply(std::string_view status) {
  return reply("send-document-response", element("submission-status", escapedForXml(status)));
}

}  // namespace awizo::demo
