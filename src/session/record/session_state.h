#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/debug_log.h"
#include "platform/forms/platform.h"
#include "platform/forms/screen_face.h"
#include "platform/xml.h"
#include "session/record/exchange.h"

namespace awizo {

/// The one record of session state. The host makes it and passes it on; every procedure reads and
/// writes it by these names.
struct SessionState {
  explicit SessionState(const Platform& platform)
      : log(platform.clock, platform.locale, platform.files),
        UserInfoDom(platform.xml.createDocument()),
        PartnerInfoDom(platform.xml.createDocument()),
        LocalizationsDom(platform.xml.createDocument()),
        ProductCatalogDom(platform.xml.createDocument()) {}

  DebugLog log;  ///< holds LogLevel, LogStream and LogFileSystem

  bool IsoCheckOk = false;
  std::string IsoCheckCode;  ///< two-letter code that the last country check found
  bool AllPacked = false;    ///< the whole despatched quantity of every line lies in packages
  bool SendQuestionAsked = false;
  std::int16_t LineCount = 0;    ///< lines of the document in grdPozycje
  std::string LastFilePath;      ///< last file chosen in the file dialog, "" for none
  std::string OffLinePathValue;  ///< the local folder, classic path
  std::string DecimalSeparator;  ///< one character
  std::string SessionCookie;     ///< cookie of the host page
  std::optional<Exchange> RunningExchange;
  bool RequestMayHaveArrived = false;  ///< the one that was sent last
  std::unique_ptr<XmlDocument> UserInfoDom;
  std::unique_ptr<XmlDocument> PartnerInfoDom;
  std::unique_ptr<XmlDocument> LocalizationsDom;   ///< root "dictionary-response"
  std::unique_ptr<XmlDocument> ProductCatalogDom;  ///< root "Document-ProductCatalogue"
  bool LocalizationsLoaded = false;
  bool ProductCatalogLoaded = false;
  bool UserInfoLoaded = false;
  bool PartnerInfoLoaded = false;
  std::string SellerILN, SellerNIP, SellerName, SellerAccount;
  std::string BuyerILN, BuyerNIP, BuyerName, BuyerAccount;
  Cursor WaitCursor = Cursor::normal;
  std::int16_t IloscPozycjiOpak = 0;  ///< packages of the document in grdOpakowania
  std::int16_t EditRow = 0;           ///< row of grdPozycje under in-table editing

  // The packages, element i for row i + 1; one empty element more than there are packages. Empty
  // until the first dialog is prepared.
  std::vector<std::string> ParentSerials;
  std::vector<std::string> ParentDescriptions;
  std::vector<std::int16_t> ParentLevels;

  std::string IsoResult;  ///< entry last chosen in the country list, "(RU)Россия"
};

}  // namespace awizo
