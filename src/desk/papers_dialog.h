#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "desk/papers_source.h"
#include "desk/question.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/painting.h"
#include "platform/settings.h"

namespace awizo {

enum class Paper { labels, packingList, packageSheets };

/// A name for the file of this paper, without a folder: "Этикетки_ТН-6.pdf".
std::string paperFileName(std::string_view paper, std::string_view number, std::string_view ending);

/// Shows the papers of one despatch advice sheet by sheet, and lets the user write and print them.
/// The host draws the sheet, writes and prints.
class PapersDialog : public Form {
 public:
  PapersDialog(Screen& screen, const papers::TextMeasure& measure,
               const papers::SymbolEncoder& encoder, SettingsStore& settings);

  DropDownList cboPaper, cboPackages, cboSize, cboCopies, cboPrinter;
  Button btnPrevious, btnNext;
  Label lblSheet;  ///< "лист 1 из 3"
  Label lblNotes;  ///< packages that get no label, or why there is no paper
  Button btnPdf, btnPrint, btnClose;

  void show(PapersSource source, Paper paper);

  const papers::Pages& pages() const { return pages_; }
  /// The sheet that is shown; null where there is none.
  const papers::Page* page() const;
  std::string title() const;
  std::string fileName() const;

  /// The sheet to be shown is another.
  std::function<void()> onSheet;
  /// Writes or prints all pages; answers whether that was done. A host that prints to files too has
  /// no onPdf.
  std::function<bool()> onPdf, onPrint;

  /// The printing has ended that onPrint began without knowing how it would end: of labels the user
  /// is asked whether they were printed.
  void printingEnded(const std::function<Choice(const Question& question)>& ask);

 private:
  bool areLabels() const { return cboPaper.index() == 0; }
  void remake();
  void makeLabels();
  std::vector<std::size_t> chosenNumbers() const;
  void turnTo(std::size_t sheet);
  void finish(const std::function<bool()>& deed);
  void noteDone();
  void keepSettings();

  const papers::TextMeasure& measure_;
  const papers::SymbolEncoder& encoder_;
  SettingsStore& settings_;
  PapersSource source_;
  papers::Pages pages_;
  std::size_t sheet_ = 0;
  bool filling_ = false;
  std::vector<std::string> shownNumbers_;  ///< of the labels shown
  std::set<std::string> doneNumbers_;      ///< of labels written or printed before
  std::vector<std::string> sentNumbers_;   ///< of labels that may have been printed
};

}  // namespace awizo
