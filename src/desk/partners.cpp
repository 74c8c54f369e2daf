#include "desk/partners.h"

#include <algorithm>

#include "platform/run_time_error.h"
#include "platform/text.h"
#include "service/transport.h"
#include "session/local_folder.h"

namespace awizo {
namespace {

constexpr std::string_view infoPath = "/*/partner-info/info/";
constexpr std::string_view buyerPath = "/Document-DespatchAdvice/DespatchAdvice-Parties/Buyer/ILN";

constexpr std::string_view partnerEnd = "_partner_INFO.xml";

/// The document in the file; an empty one where there is none.
std::unique_ptr<XmlDocument> loaded(const Xml& xml, Files& files, std::string_view path) {
  std::unique_ptr<XmlDocument> document = xml.createDocument();
  try {
    document->loadBytes(files.readAll(path));
  } catch (const RunTimeError&) {
    document->loadText("");
  }
  return document;
}

std::string infoOf(XmlDocument& document, std::string_view name) {
  return GetNodeValue(document.node(), joined({infoPath, name}), true);
}

std::vector<std::string> filesIn(Files& files, std::string_view folder) {
  try {
    return files.files(folder, ".xml");
  } catch (const RunTimeError&) {
    return {};
  }
}

/// The buyer's ILN in the name of a partner's file; empty for any other file.
std::string buyerInName(std::string_view file, std::string_view sellerIln) {
  const std::string beginning = joined({sellerIln, "_"});
  if (!file.starts_with(beginning) || !file.ends_with(partnerEnd)) return "";
  if (file.size() <= beginning.size() + partnerEnd.size()) return "";
  const std::string_view iln =
      file.substr(beginning.size(), file.size() - beginning.size() - partnerEnd.size());
  const bool digits = std::ranges::all_of(iln, [](char c) { return c >= '0' && c <= '9'; });
  return digits ? std::string(iln) : "";
}

bool isSame(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, {}, lowerLatin, lowerLatin);
}

}  // namespace

std::string nameInFolder(std::string_view file) {
  const std::string user = userInfoFile("");
  const std::string_view userName = std::string_view(user).substr(1);
  if (isSame(file, userName)) return std::string(userName);
  if (file.find_first_of("\\/") != file.npos || file.size() <= partnerEnd.size()) return "";
  const std::string_view numbers = file.substr(0, file.size() - partnerEnd.size());
  if (!isSame(file.substr(numbers.size()), partnerEnd)) return "";
  return joined({numbers, partnerEnd});
}

FolderContent lookIntoFolder(const Xml& xml, Files& files, std::string_view folder) {
  FolderContent content;
  if (folder.empty()) {
    content.missing = "Папка для работы без связи ещё не выбрана.";
    return content;
  }
  const auto user = loaded(xml, files, userInfoFile(folder));
  const std::string seller = infoOf(*user, "iln");
  if (seller.empty()) {
    content.missing =
        "В папке нет файла userinfo.xml с данными вашей фирмы. Его выдаёт партнёр; положите его "
        "в эту папку.";
    return content;
  }
  content.sellerILN = seller;
  content.seller = infoOf(*user, "name");
  for (const std::string& file : filesIn(files, folder)) {
    const std::string iln = buyerInName(file, seller);
    if (iln.empty()) continue;
    const auto partner = loaded(xml, files, joined({folder, "\\", file}));
    content.partners.push_back({iln, infoOf(*partner, "name")});
  }
  if (content.partners.empty()) {
    content.missing =
        joined({"В папке нет данных ни одного покупателя: файла ", seller,
                "_…_partner_INFO.xml. Он появляется после первого сеанса со службой."});
  }
  return content;
}

std::string buyerOfDocument(const Xml& xml, Files& files, std::string_view path) {
  return GetNodeValue(loaded(xml, files, path)->node(), buyerPath, true);
}

}  // namespace awizo
