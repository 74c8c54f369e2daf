#include "hosts/desktop/window/paper_maker.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "adapters/posix/paths/paths.h"
#include "desk/host_boxes.h"
#include "desk/layout_words.h"
#include "hosts/desktop/faces/text.h"
#include "session/record/off_line_path.h"

namespace awizo::desktop {

PaperMaker::PaperMaker(const Editor& editor, Files& files, SettingsStore& settings, QWidget& window)
    : editor_(editor),
      files_(files),
      settings_(settings),
      window_(window),
      dialog_(editor.screen(), measure_, encoder_, settings) {
  askTarget = [this](const QString& proposed) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileDialog::getSaveFileName(&window_, fromText(dialog_.title()),
                                        QDir(folder).filePath(proposed), fromText(words::pdfKind));
  };
  askDocument = [this] {
    return QFileDialog::getOpenFileName(&window_, fromText(words::savedDocumentTitle), QString(),
                                        fromText(words::savedDocumentKind));
  };
  print = [this](const papers::Pages& pages) {
    QPrinter printer(QPrinter::HighResolution);
    // A label that is fitted to other paper has bars of another width.
    printer.setFullPage(true);
    printer.setDocName(fromText(dialog_.title()));
    QPrintDialog choice(&printer, &window_);
    return choice.exec() == QDialog::Accepted && printPages(pages, printer);
  };
  dialog_.onPdf = [this] { return write(); };
  dialog_.onPrint = [this] { return print(dialog_.pages()); };
}

void PaperMaker::show(Paper paper) {
  if (!editor_.form.takesInput()) return;
  PapersSource source;
  if (const auto error = caughtError([&] { source = papersSource(editor_); })) {
    return tell(std::string(words::noPapers), *error);
  }
  dialog_.show(std::move(source), paper);
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

bool PaperMaker::write() {
  const QString path = askTarget(fromText(dialog_.fileName()));
  if (path.isEmpty()) return false;
  const auto error = caughtError([&] {
    files_.replace(posix::classicPath(toText(QDir().absoluteFilePath(path))),
                   pdfOf(dialog_.pages(), dialog_.title()));
  });
  if (error) tell(toText(path), *error);
  return !error;
}

void PaperMaker::tell(const std::string& what, const RunTimeError& error) {
  editor_.screen().messageBox(paperRefusal(what, error));
}

}  // namespace awizo::desktop
