#include "hosts/desktop/window/paper_maker.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <utility>

#include "adapters/posix/paths/paths.h"
#include "desk/host_boxes.h"
#include "desk/layout_words.h"
#include "hosts/desktop/faces/text.h"
#include "papers/packing_csv.h"
#include "session/record/off_line_path.h"

namespace awizo::desktop {
namespace {

constexpr std::string_view csvEnding = ".csv";

}  // namespace

PaperMaker::PaperMaker(const Editor& editor, Files& files, SettingsStore& settings, QWidget& window)
    : editor_(editor),
      files_(files),
      settings_(settings),
      window_(window),
      dialog_(editor.screen(), measure_, encoder_, settings) {
  askTarget = [this](const QString& proposed) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const bool isTable = proposed.endsWith(fromText(csvEnding));
    return QFileDialog::getSaveFileName(
        &window_, isTable ? fromText(words::packingListTitle) : fromText(dialog_.title()),
        QDir(folder).filePath(proposed), fromText(isTable ? words::csvKind : words::pdfKind));
  };
  askDocument = [this] {
    return QFileDialog::getOpenFileName(&window_, fromText(words::savedDocumentTitle), QString(),
                                        fromText(words::savedDocumentKind));
  };
  choosePrinter = [this](const QString& title) -> std::unique_ptr<QPagedPaintDevice> {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(title);
    const bool isChosen = QPrintDialog(printer.get(), &window_).exec() == QDialog::Accepted;
    return isChosen ? std::move(printer) : nullptr;
  };
  hasPrinter = [] { return !QPrinterInfo::availablePrinterNames().isEmpty(); };
  dialog_.onPdf = [this] { return write(); };
  dialog_.onPrint = [this] { return print(); };
}

std::optional<PapersSource> PaperMaker::source() {
  if (!editor_.form.takesInput()) return std::nullopt;
  std::optional<PapersSource> source;
  if (const auto error = caughtError([&] { source = papersSource(editor_); })) {
    tell(std::string(words::noPapers), *error);
  }
  return source;
}

void PaperMaker::show(Paper paper) {
  if (std::optional<PapersSource> shown = source()) dialog_.show(std::move(*shown), paper);
}

void PaperMaker::writePackingCsv() {
  const std::optional<PapersSource> shown = source();
  if (!shown) return;
  const std::string name =
      paperFileName(words::packingListTitle, shown->advice.header.number, csvEnding);
  write(askTarget(fromText(name)),
        [&] { return papers::packingCsv(papers::shipmentOf(shown->advice)); });
}

void PaperMaker::showSaved() {
  if (!editor_.form.takesInput()) return;
  const QString path = askDocument();
  if (path.isEmpty()) return;
  PapersSource source;
  const auto error = caughtError([&] {
    source = papersSource(editor_.platform.xml, files_, posix::classicPath(toText(path)),
                          keptOffLinePath(settings_));
  });
  if (error) return tell(toText(path), *error);
  dialog_.show(std::move(source), Paper::labels);
}

bool PaperMaker::print() {
  if (!hasPrinter()) {
    editor_.screen().messageBox(noPrinter());
    return false;
  }
  const auto printer = choosePrinter(fromText(dialog_.title()));
  if (!printer) return false;
  const bool isDone = printPages(dialog_.pages(), *printer);
  if (!isDone) editor_.screen().messageBox(printRefusal());
  return isDone;
}

bool PaperMaker::write() {
  return write(askTarget(fromText(dialog_.fileName())),
               [this] { return pdfOf(dialog_.pages(), dialog_.title()); });
}

bool PaperMaker::write(const QString& path, const std::function<std::string()>& content) {
  if (path.isEmpty()) return false;
  const auto error = caughtError([&] {
    files_.replace(posix::classicPath(toText(QDir().absoluteFilePath(path))), content());
  });
  if (error) tell(toText(path), *error);
  return !error;
}

void PaperMaker::tell(const std::string& what, const RunTimeError& error) {
  editor_.screen().messageBox(paperRefusal(what, error));
}

}  // namespace awizo::desktop
