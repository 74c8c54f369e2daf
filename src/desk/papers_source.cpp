#include "desk/papers_source.h"

#include <algorithm>

#include "desk/marked_rows.h"
#include "desk/partners.h"
#include "formats/advice_of_document.h"
#include "formats/advice_of_tables.h"
#include "formats/despatch_advice_writer.h"
#include "platform/run_time_error.h"
#include "service/transport.h"

namespace awizo {
namespace {

constexpr std::string_view placesPath =
    "document-content/Document-LocalizationsCatalog/localizations/localization";

/// Numbers and addresses of the delivery places that the packages go to.
void takePlaces(const SessionState& session, const DespatchAdvice& advice, papers::Names& names) {
  if (!session.LocalizationsLoaded) return;
  const XmlNode root = session.LocalizationsDom->root();
  if (!root) return;
  for (const XmlNode& place : root.selectAll(placesPath)) {
    const std::string iln = GetNodeValue(place, "iln", true);
    const bool isNeeded = iln == advice.header.deliveryILN ||
                          std::ranges::find(advice.packages, iln, &AdvicePackage::deliveryPlace) !=
                              advice.packages.end();
    if (iln.empty() || !isNeeded) continue;
    const std::string number = GetNodeValue(place, "number", true);
    const std::string address = GetNodeValue(place, "address", true);
    names.places[iln] = number + (number.empty() || address.empty() ? "" : ", ") + address;
  }
}

}  // namespace

PapersSource papersSource(const Editor& editor) {
  DespatchAdvice advice = adviceOf(editor);
  // Labels are wanted before the date is known; a document isn't made without one.
  const std::string date = advice.header.deliveryDate;
  if (date.empty()) advice.header.deliveryDate = "-";
  PapersSource source;
  source.advice = adviceOf(*xmlOf(editor.platform.xml, advice));
  source.advice.header.deliveryDate = date;
  const SessionState& session = editor.session;
  if (source.advice.header.sellerILN == session.SellerILN) source.names.seller = session.SellerName;
  if (source.advice.header.buyerILN == session.BuyerILN) source.names.buyer = session.BuyerName;
  takePlaces(session, source.advice, source.names);
  const std::vector<int> marked =
      markedRows(editor.form.grdOpakowania, static_cast<int>(source.advice.packages.size()));
  source.marked.assign(marked.begin(), marked.end());
  return source;
}

PapersSource papersSource(const Xml& xml, Files& files, std::string_view path,
                          std::string_view folder) {
  const std::unique_ptr<XmlDocument> document = xml.createDocument();
  if (!document->loadBytes(files.readAll(path)) ||
      !document->node().selectSingle("/Document-DespatchAdvice")) {
    throw errors::invalidProcedureCall();
  }
  PapersSource source;
  source.advice = adviceOf(*document);
  source.names = namesInFolder(xml, files, folder, source.advice.header);
  return source;
}

papers::Names namesInFolder(const Xml& xml, Files& files, std::string_view folder,
                            const AdviceHeader& header) {
  const FolderContent content = lookIntoFolder(xml, files, folder);
  papers::Names names;
  if (content.sellerILN == header.sellerILN) names.seller = content.seller;
  for (const Partner& partner : content.partners) {
    if (partner.iln == header.buyerILN) names.buyer = partner.name;
  }
  return names;
}

}  // namespace awizo
