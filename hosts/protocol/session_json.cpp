#include "hosts/protocol/session_json.h"

#include <memory>

#include "platform/xml.h"

namespace awizo::protocol {

namespace {

std::string xmlText(const std::unique_ptr<XmlDocument>& document) {
  if (!document || !document->root()) return "";
  return document->node().xml();
}

Json documentsJson(const SessionState& session) {
  return {{"UserInfoDom", xmlText(session.UserInfoDom)},
          {"PartnerInfoDom", xmlText(session.PartnerInfoDom)},
          {"LocalizationsDom", xmlText(session.LocalizationsDom)},
          {"ProductCatalogDom", xmlText(session.ProductCatalogDom)},
          {"LocalizationsLoaded", session.LocalizationsLoaded},
          {"ProductCatalogLoaded", session.ProductCatalogLoaded},
          {"UserInfoLoaded", session.UserInfoLoaded},
          {"PartnerInfoLoaded", session.PartnerInfoLoaded}};
}

Json partiesJson(const SessionState& session) {
  return {{"SellerILN", session.SellerILN},   {"SellerNIP", session.SellerNIP},
          {"SellerName", session.SellerName}, {"SellerAccount", session.SellerAccount},
          {"BuyerILN", session.BuyerILN},     {"BuyerNIP", session.BuyerNIP},
          {"BuyerName", session.BuyerName},   {"BuyerAccount", session.BuyerAccount}};
}

}  // namespace

const char* cursorName(Cursor cursor) { return cursor == Cursor::wait ? "wait" : "default"; }

Json sessionJson(const SessionState& session) {
  Json json{{"LogLevel", session.log.LogLevel},
            {"LogStream", session.log.LogStream != nullptr},
            {"LogFileSystem", session.log.LogFileSystem != nullptr},
            {"IsoCheckOk", session.IsoCheckOk},
            {"IsoCheckCode", session.IsoCheckCode},
            {"AllPacked", session.AllPacked},
            {"SendQuestionAsked", session.SendQuestionAsked},
            {"LineCount", session.LineCount},
            {"LastFilePath", session.LastFilePath},
            {"OffLinePathValue", session.OffLinePathValue},
            {"DecimalSeparator", session.DecimalSeparator},
            {"SessionCookie", session.SessionCookie}};
  json.update(documentsJson(session));
  json.update(partiesJson(session));
  json.update(Json{{"WaitCursor", cursorName(session.WaitCursor)},
                   {"IloscPozycjiOpak", session.IloscPozycjiOpak},
                   {"EditRow", session.EditRow},
                   {"ParentSerials", session.ParentSerials},
                   {"ParentDescriptions", session.ParentDescriptions},
                   {"ParentLevels", session.ParentLevels},
                   {"IsoResult", session.IsoResult}});
  return json;
}

}  // namespace awizo::protocol
