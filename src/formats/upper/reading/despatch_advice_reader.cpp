#include "formats/upper/reading/despatch_advice_reader.h"

#include <utility>

#include "formats/catalogue_completion.h"
#include "formats/despatch_advice_paths.h"
#include "formats/upper/reading/line_reader.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "service/transport.h"
#include "session/record/header_panel.h"
#include "tables/columns/columns.h"
#include "tables/row.h"
#include "tables/totals.h"
#include "tables/upper/editing/clear_form.h"
#include "tables/upper/editing/in_table_editing.h"

namespace awizo {
namespace {

bool usable(std::string_view text) { return !text.empty() && text != "-1"; }

void showPlain(Work& work, std::string_view text) {
  work.screen().messageBox({std::string(text), ""});
}

ReadingResult refuse(Work& work, std::string_view text, ReadingOutcome why) {
  work.screen().showExclamation(text, "VIRD");
  return {why, {}};
}

int packageDescriptionIndex(std::string_view code) {
  if (code == "09") return 0;
  if (code == "201") return 1;
  if (code == "PK") return 2;
  return -1;
}

/// A file that can't be read is a document that can't be loaded.
bool loadFile(Files& files, XmlDocument& document, std::string_view path) {
  try {
    return document.loadBytes(files.readAll(path));
  } catch (const RunTimeError&) {
    return false;
  }
}

/// Reads one document into the form, part by part.
class DocumentReader {
 public:
  DocumentReader(Editor& editor, XmlDocument& document)
      : editor_(editor), form_(editor.form), document_(document) {}

  ReadingResult read() {
    if (GetNodeValue(document_.node(), sellerIlnPath, true) != editor_.session.SellerILN) {
      return refuse(editor_, "Неправильный ILN номер продавца", ReadingOutcome::foreignSeller);
    }
    form_.txtCodeByBuyer.setText(value("DespatchAdvice-Parties/Seller/CodeByBuyer", true));
    if (GetNodeValue(document_.node(), buyerIlnPath, true) != editor_.session.BuyerILN) {
      return refuse(editor_, "Неправильный ILN номер покупателя.", ReadingOutcome::foreignBuyer);
    }
    readHeader();
    readDelivery();
    readPackageHeader();
    form_.btnEdytuj.setVisible(true);
    showPlain(editor_, "break1");
    readPackages();
    readLines();
    const bool complete = missing_.empty();
    return {complete ? ReadingOutcome::complete : ReadingOutcome::incomplete, std::move(missing_)};
  }

 private:
  static std::string whole(std::string_view path) {
    return std::string("/Document-DespatchAdvice/").append(path);
  }
  std::string value(std::string_view path, bool blankOnMissing) {
    return GetNodeValue(document_.node(), whole(path), blankOnMissing);
  }
  std::optional<TimeOfDay> timeAt(std::string_view path) {
    const std::string text = value(path, true);
    if (text.empty()) return std::nullopt;
    return editor_.conversions.toTime(text);
  }
  Date dateOrToday(std::string_view path) {
    const std::string text = value(path, false);
    return usable(text) ? editor_.conversions.toDate(text) : editor_.platform.clock.today();
  }
  void requiredText(TextField& field, std::string_view path) {
    const std::string text = value(path, false);
    if (usable(text)) {
      field.setText(text);
    } else {
      missing_.push_back(whole(path));
    }
  }

  void readHeader() {
    requiredText(form_.txtNrAwiza, "DespatchAdvice-Header/DespatchAdviceNumber");
    form_.txtDataAwiza.setDate(dateOrToday("DespatchAdvice-Header/DespatchAdviceDate"));
    requiredText(form_.txtNrZam, "DespatchAdvice-Header/BuyerOrderNumber");
    const std::string orderDate = value("DespatchAdvice-Header/OrderDate", true);
    form_.dpDataZam.setDate(orderDate.empty() ? std::optional<Date>()
                                              : editor_.conversions.toDate(orderDate));
    form_.txtEstimatedDeliveryDate.setDate(
        dateOrToday("DespatchAdvice-Header/EstimatedDeliveryDate"));
    form_.txtEstimatedDeliveryTime.setTime(timeAt("DespatchAdvice-Header/EstimatedDeliveryTime"));
    form_.txtDespatchAdviceTime.setTime(timeAt("DespatchAdvice-Header/DespatchAdviceTime"));
  }

  void readDelivery() {
    const std::string iln = value("DespatchAdvice-Parties/DeliveryPoint/ILN", false);
    form_.DeliveryILN = usable(iln) ? iln : editor_.session.BuyerILN;
    form_.lblILNMiejscaDostValue.setCaption(form_.DeliveryILN);
    CompleteFromLocalizationCatalog(editor_, form_.DeliveryILN);
  }

  void readPackageHeader() {
    const std::string below = "DespatchAdvice-Consignment/Packing-Sequence/Package-Identification/";
    form_.cboxPackageDescription.setIndex(
        packageDescriptionIndex(value(below + "PackageDescription", true)));
    form_.txtGoodsIdentity.setText(value(below + "GoodsIdentity", true));
  }

  /// The heading and a row for each element; an empty table has a row too.
  static int rowsFor(std::int16_t elements) { return elements == 0 ? 2 : elements + 1; }
  /// Elements that can't be counted get no rows, which would take memory without bounds.
  static std::int16_t requireCount(const std::vector<XmlNode>& elements) {
    return narrow16(static_cast<std::int64_t>(elements.size()));
  }

  void readPackage(const XmlNode& package, const Row& row) {
    row.set(GRD_OPAK_LP, std::to_string(row.number()));
    const std::string id = GetNodeValue(package, "PackageId", true);
    showPlain(editor_, id);
    row.set(GRD_OPAK_ID_LOW, id);
  }

  /// The rows appear, but the count of packages stays what it was.
  void readPackages() {
    const XmlNode consignment = document_.node().selectSingle(consignmentPath);
    if (!consignment) {
      showPlain(editor_, "break3");
      missing_.emplace_back(consignmentPath);
      return;
    }
    Table& grid = form_.grdOpakowania;
    const std::vector<XmlNode> packages = consignment.selectAll("Packing-Sequence");
    grid.setFixedRows(1);
    grid.setRows(rowsFor(requireCount(packages)));
    grid.setRedraw(false);
    int row = 0;
    for (const XmlNode& package : packages) readPackage(package, packageRow(editor_, ++row));
    grid.setRow(1);
    grid.setColumn(1);
    grid.setRedraw(true);
  }

  void readLines() {
    const XmlNode parent = document_.node().selectSingle(despatchLinesPath);
    Table& grid = form_.grdPozycje;
    if (!parent) {
      missing_.emplace_back(despatchLinesPath);
    } else {
      const std::vector<XmlNode> lines = parent.selectAll("Line");
      grid.setFixedRows(1);
      const std::int16_t count = requireCount(lines);
      grid.setRows(rowsFor(count));
      editor_.session.LineCount = count;
      grid.setRedraw(false);
      std::int16_t row = 0;
      for (const XmlNode& line : lines) readDespatchLine(editor_, line, ++row);
    }
    grid.setRow(1);
    grid.setColumn(1);
    grid.setRedraw(true);
    form_.grdSuma.setColumn(1);
    grid.setRow(1);
    form_.grdSuma.setRedraw(true);
  }

  Editor& editor_;
  AwizoForm& form_;
  XmlDocument& document_;
  std::vector<std::string> missing_;
};

/// An error while the document is read counts as a document that isn't complete.
ReadingResult readInto(Editor& editor, XmlDocument& document) {
  ReadingResult result;
  const auto error = caughtError([&] { result = DocumentReader(editor, document).read(); });
  return error ? ReadingResult{ReadingOutcome::failed, {}, error} : result;
}

/// The document's own totals, where it has them, replace the computed ones.
void takeTotals(Editor& editor, XmlDocument& document) {
  Table& totals = editor.form.grdSuma;
  totals.setRedraw(false);
  const auto take = [&](std::string_view path, int column) {
    const std::string total = GetNodeValue(document.node(), path, true);
    if (total.empty()) return;
    totalsRow(editor).set(column, editor.conversions.NormalizeDecimal(total, 2));
  };
  take("/Document-DespatchAdvice/DespatchAdvice-Summary/TotalQuantity", GRD_SUMA_QTY_DESPATCHED);
  take("/Document-DespatchAdvice/DespatchAdvice-Summary/TotalAmount", GRD_SUMA_NET_AMOUNT);
  totals.setRedraw(true);
}

/// A document from a file never answers an order, whatever it refers to.
void finish(Editor& editor, XmlDocument& document) {
  PoprawGrdSuma(editor);
  takeTotals(editor, document);
  editor.form.OrderAnswer = false;
  editor.form.lblNiepelnaWagaKom.setCaption("");
  editor.form.btnUsun.setEnabled(true);
  editor.form.btnEdytuj.setEnabled(true);
}

}  // namespace

/// The form is emptied before the file is looked at, and stays so when the file is refused.
ReadingResult readDespatchAdvice(Editor& editor, XmlDocument& document, std::string_view path) {
  using enum ReadingOutcome;
  closeOpenEdits(editor);
  SetHeader(editor);
  ClearForm(editor);
  showParties(editor);
  if (!LoadDocument(editor, document, path)) {
    return refuse(editor, "Неправильный формат файла XML.", noXml);
  }
  if (!IsDespatchAdvice(document)) {
    return refuse(editor, "Документ не соответствует спецификации подтверждения закза.",
                  notDespatchAdvice);
  }
  ReadingResult result = readInto(editor, document);
  if (result.outcome == foreignSeller || result.outcome == foreignBuyer) return result;
  if (result.outcome != failed) finish(editor, document);
  if (result.outcome != complete) {
    editor.screen().showCritical(
        "Переписанный документ подтверждения заказа неправилен либо не содержит всех необходимых "
        "позиций.",
        "VIRD");
  }
  return result;
}

void btnWczytaj_Click(Editor& editor, DlgWczytajZapisz& dialog) {
  reportErrors(editor.screen(), "Произошла ошибка в btnWczytaj_Click()", [&] {
    closeOpenEdits(editor);
    editor.form.setEnabled(false);
    dialog.setUpForReading();
    dialog.showModal();
    const std::string path = editor.session.LastFilePath;
    if (!path.empty()) {
      const ReadingOutcome outcome =
          readDespatchAdvice(editor, *editor.platform.xml.createDocument(), path).outcome;
      const bool isRead =
          outcome == ReadingOutcome::complete || outcome == ReadingOutcome::incomplete;
      editor.form.deeds.tell({isRead ? Deed::Kind::read : Deed::Kind::notRead, path});
    }
    editor.form.setEnabled(true);
    editor.form.grdPozycje.refresh();
  });
  editor.form.setEnabled(true);
}

bool LoadDocument(Work& work, XmlDocument& document, std::string_view path) {
  bool loaded = false;
  reportErrors(work.screen(), "Произошла ошибка вLoadDocument()", [&] {
    Files& files = work.platform.files;
    loaded = loadFile(files, document, path);
    if (loaded) return;
    const std::string text = work.platform.locale.fromSingleByte(files.readAll(path));
    loaded = document.loadText("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + text);
  });
  return loaded;
}

bool IsDespatchAdvice(XmlDocument& document) {
  return static_cast<bool>(document.node().selectSingle("/Document-DespatchAdvice"));
}

}  // namespace awizo
