#include "session/identity.h"

#include "service/transport.h"
#include "session/local_folder.h"
#include "session/record/properties.h"

namespace awizo {
namespace {

/// Below the document element of the user's file and of the partner's file alike.
constexpr std::string_view identityPath = "partner-info/info";

/// Whether the file is there and is XML. The document is empty otherwise.
bool loadFile(Files& files, XmlDocument& document, std::string_view path) {
  try {
    return document.loadBytes(files.readAll(path));
  } catch (const RunTimeError&) {
    document.loadText("");
    return false;
  }
}

void readSeller(SessionState& session) {
  session.SellerILN.clear();
  const XmlNode info = session.UserInfoDom->root().selectSingle(identityPath);
  if (!info) return;
  session.SellerILN = GetNodeValue(info, "iln", true);
  session.SellerNIP = GetNodeValue(info, "nip", true);
  session.SellerName = GetNodeValue(info, "name", true);
  session.SellerAccount = GetNodeValue(info, "account", true);
}

/// Whether the partner's file says who the partner is.
bool readPartner(Work& work) {
  SessionState& session = work.session;
  const std::string path =
      partnerInfoFile(session.OffLinePathValue, session.SellerILN, session.BuyerILN);
  session.PartnerInfoLoaded = loadFile(work.platform.files, *session.PartnerInfoDom, path);
  if (!session.PartnerInfoLoaded) return false;
  const XmlNode info = session.PartnerInfoDom->root().selectSingle(identityPath);
  if (!info) return false;
  readBuyer(session, info);
  return true;
}

}  // namespace

void readBuyer(SessionState& session, const XmlNode& info) {
  session.BuyerNIP = GetNodeValue(info, "nip", true);
  session.BuyerName = GetNodeValue(info, "name", true);
  session.BuyerAccount = GetNodeValue(info, "account", true);
}

Refusal readIdentity(Editor& editor) {
  SessionState& session = editor.session;
  session.UserInfoLoaded =
      loadFile(editor.platform.files, *session.UserInfoDom, userInfoFile(session.OffLinePathValue));
  if (!session.UserInfoLoaded) return "Нет или неправильный формат файла XML о пользователе.";
  readSeller(session);
  // On line the service will say who the partner is.
  if (!readPartner(editor) && isOffLine(editor.form.OnLine)) {
    return "Нет или неправильный формат файла XML о партнёре.";
  }
  return "";
}

}  // namespace awizo
