#pragma once

#include <string_view>

#include "desk/papers_dialog.h"
#include "hosts/headless/conversation.h"
#include "papers/digit_symbols.h"
#include "papers/known_widths.h"
#include "platform/files.h"
#include "session/record/editor.h"

namespace awizo::headless {

/// Papers for a client that shows and prints them:
///   {"event":"sheet","svg":"..."}   what the dialog of papers shows now; empty for no sheet
///   {"event":"print","title":"Этикетки ТН-6","sheets":["<svg ...", ...]}
///   {"do":"printed"}               the client's printing has ended, it doesn't know how: of labels
///                                  the user is asked whether they were printed
///   {"event":"file","name":"Упаковочный_лист_ТН-6.csv","text":"..."}   to be handed to the user
class ServedPapers {
 public:
  /// All outlive it.
  ServedPapers(const Editor& editor, Files& files, SettingsStore& settings,
               Conversation& conversation);

  Form& dialog() { return dialog_; }
  void show(Paper paper);
  /// Of a saved document. The user is told of it by the name.
  void showSaved(std::string_view classicPath, std::string_view name);
  void handOutPackingCsv();
  void printingEnded();

 private:
  std::optional<PapersSource> source();
  void tell(std::string_view what, const RunTimeError& error);
  void tellSheet();
  bool print();

  const Editor& editor_;
  Files& files_;
  SettingsStore& settings_;
  Conversation& conversation_;
  papers::KnownWidths widths_;
  papers::DigitSymbols symbols_;
  PapersDialog dialog_;
};

}  // namespace awizo::headless
