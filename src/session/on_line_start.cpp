#include "session/on_line_start.h"

#include "formats/order_reader.h"
#include "formats/row_check.h"
#include "platform/at_exit.h"
#include "platform/narrow.h"
#include "service/exchanges.h"
#include "service/transport.h"
#include "session/identity.h"
#include "session/local_folder.h"
#include "session/record/header_panel.h"
#include "tables/columns/columns.h"
#include "tables/row_colour.h"

namespace awizo {
namespace {

/// The whole reply; none, on which every selection raises error 91, where there is no reply.
XmlNode nodeOf(const std::unique_ptr<XmlDocument>& reply) {
  return reply ? reply->node() : XmlNode();
}

/// Finds out where the service is and with which identity to call it. Returns the base address.
std::string readPage(Editor& editor) {
  AwizoForm& form = editor.form;
  const std::string base = GetBaseUrl(editor.platform.page.url());
  form.PartnersUrl = partnersUrl(base);
  form.UploadUrl = uploadUrl(base, form.PartnerURL);
  form.OrderDataUrl = orderDataUrl(base, form.PartnerURL);
  editor.session.SessionCookie = editor.platform.page.cookie();
  return base;
}

/// Whether the service knows the partner. What it answers becomes the partner's file.
bool fetchPartner(Editor& editor) {
  SessionState& session = editor.session;
  const Platform& platform = editor.platform;
  const auto request = partnerInfoRequest(platform.xml, session.BuyerILN);
  auto reply = runExchange(editor, Exchange::partnerInfo, editor.form.PartnersUrl, *request);
  const XmlNode info = nodeOf(reply).selectSingle(partnerInfoPath);
  if (!info) return false;

  session.PartnerInfoDom = std::move(reply);
  session.PartnerInfoLoaded = true;
  readBuyer(session, info);
  platform.files.replace(
      partnerInfoFile(session.OffLinePathValue, session.SellerILN, session.BuyerILN),
      session.PartnerInfoDom->fileBytes());
  return true;
}

void keepParties(const SessionState& session, AwizoForm& form) {
  form.HeaderBuyerILN = session.BuyerILN;
  form.HeaderBuyerName = session.BuyerName;
  form.HeaderSellerILN = session.SellerILN;
  form.HeaderSellerName = session.SellerName;
}

/// Without a catalogue the dialogs work all the same, so nothing here is shown to the user.
void fetchProductCatalogue(Editor& editor, std::string_view base) {
  SessionState& session = editor.session;
  const auto request = productCatalogueRequest(editor.platform.xml, session.BuyerILN);
  auto reply = runExchange(editor, Exchange::productCatalogue, productCatalogueUrl(base), *request);
  const std::string status = GetNodeValue(nodeOf(reply), catalogueStatusPath, true);
  if (status == "ERROR") {
    // The service's description isn't shown to anybody; the control is only made usable.
    editor.form.setEnabled(true);
  } else if (status == "CHANGED") {
    const XmlNode catalogue = nodeOf(reply).selectSingle(cataloguePath);
    session.ProductCatalogLoaded = static_cast<bool>(catalogue);
    if (!catalogue) return;
    // The catalogue can be many megabytes: it stays the document that it came in.
    reply->keepOnly(catalogue);
    session.ProductCatalogDom = std::move(reply);
  }
}

void fetchLocalizations(Work& work, std::string_view base) {
  SessionState& session = work.session;
  session.LocalizationsLoaded = false;
  const auto request = localizationCatalogueRequest(work.platform.xml, session.BuyerILN);
  auto reply =
      runExchange(work, Exchange::deliveryPlaces, localizationCatalogueUrl(base), *request);
  if (GetNodeValue(nodeOf(reply), localizationStatusPath, true) != "CHANGED") return;
  session.LocalizationsDom = std::move(reply);
  session.LocalizationsLoaded = true;
}

/// The document of a waiting order; none where no order waits.
std::unique_ptr<XmlDocument> fetchOrder(Editor& editor) {
  const auto request = orderRequest(editor.platform.xml);
  auto reply = runExchange(editor, Exchange::order, editor.form.OrderDataUrl, *request);
  const XmlNode order = nodeOf(reply).selectSingle(orderPath);
  if (!order) return nullptr;
  reply->keepOnly(order);
  return reply;
}

/// Counts the lines that pass the check and paints the others. Error 6 for more lines than the cell
/// index reaches.
void checkLines(Editor& editor) {
  Table& lines = editor.form.grdPozycje;
  editor.form.ValidLineCount = 0;
  for (int row = 1; row <= editor.session.LineCount; ++row) {
    lines.setRow(row);
    if (CheckGridRow(editor, narrow16(row))) {
      editor.form.ValidLineCount = narrow16(editor.form.ValidLineCount + 1);
    } else {
      paintRow(lines, row, GRD_POZ_PACKED_QTY, pink);
    }
  }
  lines.setRow(1);
  lines.setColumn(GRD_POZ_EAN);
}

void checkLinesWaiting(Editor& editor) {
  const Cursor earlier = editor.screen().setCursor(editor.session.WaitCursor);
  // The control stays usable after an error, so the cursor must not go on to say "wait".
  const AtExit end([&] { editor.screen().setCursor(earlier); });
  checkLines(editor);
}

}  // namespace

bool HasHostDocument(HostPage& page) {
  try {
    page.cookie();
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

Refusal startOnLine(Editor& editor) {
  const std::string base = readPage(editor);
  if (!fetchPartner(editor)) return "Неправильный формат XML партнёр инфо.";
  keepParties(editor.session, editor.form);
  showParties(editor);
  fetchProductCatalogue(editor, base);
  fetchLocalizations(editor, base);
  if (auto order = fetchOrder(editor)) {
    Wczytaj_Zamowienie(editor, order);
    checkLinesWaiting(editor);
    editor.form.deeds.tell({Deed::Kind::ordered});
  } else {
    editor.form.deeds.tell({Deed::Kind::noOrder});
  }
  return "";
}

}  // namespace awizo
