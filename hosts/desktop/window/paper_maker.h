#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

#include "adapters/qt_paper/qt_paper.h"
#include "adapters/zint/zint_encoder.h"
#include "desk/papers_dialog.h"
#include "session/record/editor.h"

namespace awizo::desktop {

/// Shows, writes and prints the papers of the document in the window, or of a saved one.
class PaperMaker {
 public:
  /// Its dialog is shown on the editor's screen.
  PaperMaker(const Editor& editor, Files& files, SettingsStore& settings, QWidget& window);

  void show(Paper paper);
  void showSaved();
  /// The packing list as a table for spreadsheets.
  void writePackingCsv();

  PapersDialog& dialog() { return dialog_; }

  /// Ask for a path of the system; empty for none.
  std::function<QString(const QString& proposed)> askTarget;
  std::function<QString()> askDocument;
  /// Lets the user choose a printer for what has this title; null where he doesn't.
  std::function<std::unique_ptr<QPagedPaintDevice>(const QString& title)> choosePrinter;
  std::function<bool()> hasPrinter;

 private:
  /// The document as papers show it; the user is told why there are none.
  std::optional<PapersSource> source();
  bool print();
  bool write();
  bool write(const QString& path, const std::function<std::string()>& content);
  void tell(const std::string& what, const RunTimeError& error);

  const Editor& editor_;
  Files& files_;
  SettingsStore& settings_;
  QWidget& window_;
  QtTextMeasure measure_;
  ZintEncoder encoder_;
  PapersDialog dialog_;
};

}  // namespace awizo::desktop
