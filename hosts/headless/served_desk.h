#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "assistants/assistance.h"
#include "assistants/distribution_dialog.h"
#include "assistants/packages_dialog.h"
#include "desk/commands.h"
#include "desk/current_line.h"
#include "desk/document_watch.h"
#include "desk/line_finder.h"
#include "desk/scanned_fields.h"
#include "desk/scanner_switch.h"
#include "hosts/headless/conversation.h"
#include "hosts/headless/served_numbers.h"
#include "hosts/headless/served_papers.h"
#include "hosts/protocol/control_access.h"
#include "platform/at_exit.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/forms/list_moves.h"
#include "platform/locale.h"
#include "platform/settings.h"

namespace awizo::headless {

/// The machine, as nothing of it is recorded.
struct DeskMachine {
  const Clock& clock;
  Files& files;
  SettingsStore& settings;
  const Locale& locale;
  bool isBrowser = false;
};

/// What the desk shows beside the forms, for a client that shows it to a user:
///   {"do":"command","on":"btnEdytuj"}, {"do":"command","task":"showFaults"}   chooses a command
///   {"get":"standing"}    {"title":"ТН-6 *","status":"...","address":"...","isUnsent":true}
///   {"get":"markedText"}  the marked cells of the table that has the focus, as Ctrl+C takes them
///   {"do":"followDesk"}   from now on the user is asked before the document would be lost, keys in
///                         tables are those of commands and scanners too (with "control", with the
///                         "text" that they type), and events tell the current line in words, work
///                         that lasts, and words beside the boxes
///   {"do":"bring","name":"awizo.xml","from":"c:\\.brought"}
///                         while a document to open is being chosen, puts a file into the local
///                         folder and opens it; {"event":"mayBring"} tells when that is
///   {"get":"guideChapter"}  the heading of the guide's chapter about the form that the user is in
///   {"get":"packing"}     what lies where: see packing_records.h
///   {"do":"packRest","lines":[1,2],"package":3}   the rest of these lines into that package
///   {"do":"stop"}         ends the work of an assistant
///   {"do":"command","task":"scannerPacks"}
///                         turns that switch, and {"event":"switch",...} tells how it stands
///   {"get":"typedInto"}   {"fields":[...],"tables":[...],"lists":[...]}: a scanner types into the
///                         first two, the user into lists to find a row
///   {"do":"scan","on":"DlgSzczegoly.txtSerialNumberN","text":"(","begins":true}
///                         a character typed into one of these fields, where nothing else will be
///                         in it; without "begins" one that was typed before such a line was
///                         answered, and none where no more follows; with "isWhole" a text that was
///                         pasted. {"event":"typed",...} tells what the field holds then
///   {"do":"scanKey","code":52,"package":3}
///                         a key where what lies where is shown, on that package; refused where it
///                         is none of a scanned code's
///   {"do":"showPapersOf","path":"c:\\VIRD\\a.xml"}   after {"event":"chooseDocument"}: papers of
///                         that saved document; "name" is what the user calls it, where the path
///                         is one for a while
class ServedDesk {
 public:
  /// All outlive it. `numbers`: null where the firm has none.
  ServedDesk(const Assistance& with, ServedNumbers* numbers, const DeskMachine& machine,
             Conversation& conversation);
  ServedDesk(const ServedDesk&) = delete;
  ServedDesk& operator=(const ServedDesk&) = delete;

  /// Lets lines say so. It outlives the access.
  void serve(protocol::ControlAccess& access);
  /// Words on what was done, until the next thing is done.
  void tell(const std::string& words);
  /// Whether the user would be asked before the document goes.
  bool wouldBeLost() const { return watch_.wouldBeLost(); }
  /// Tells the current line, and the words on the package's number, where they aren't as they were
  /// told.
  void tellWords();

 private:
  using Json = protocol::Json;

  void serveRecords(protocol::Dispatcher& dispatcher);
  void follow();
  void tellWork();
  /// A form has come up for the user.
  void opened(const Form& form);
  void choose(const Json& line);
  void perform(HostTask task);
  void press(const Command& command);
  /// What the user does to a control of the form.
  void takeAct(Control* control, const Json& line, const std::function<void()>& act);
  bool takeKey(Control& control, const Json& line);
  /// Where Home and End lead: with Ctrl in every table, without it in one that is a list.
  std::optional<int> rowOfKey(const Table& table, const CommandKey& key);
  void startAgain();
  void bring(const Json& line);
  void addPackages();
  void distribute();
  void packRest(const Json& line);
  AssistantReport run(std::string_view words,
                      const std::function<AssistantReport(const GoOn& goOn)>& work);
  void showBox(const std::string& words);
  void workBegins(std::string_view what);
  void workEnds();
  /// Until what this returns goes, the user sees nothing of the dialogs.
  [[nodiscard]] auto hideDialogs() {
    conversation_.dialogsAreUnseen = true;
    return AtExit([this] { conversation_.dialogsAreUnseen = false; });
  }
  std::string packScannedUnit(std::string_view ean);
  /// What the user types or pastes in place of all that a field for scanned numbers holds.
  void scan(const Control& control, const Json& line);
  /// A key of a code that is scanned outside of the tables.
  void scanKey(const Json& line);
  void tellWhetherFilesMayBeBrought(const Form& form);
  Json standing() const;
  std::string markedText() const;

  Assistance with_;
  ServedNumbers* numbers_;
  DeskMachine machine_;
  AwizoWysylki& control_;
  Conversation& conversation_;
  std::function<void(const Json& line)> act_;  ///< does another line
  std::vector<CommandMenu> menus_;
  std::vector<Command> commands_;  ///< that press buttons, those of the dialogs too
  DocumentWatch watch_;
  CurrentLine line_;
  LineFinder finder_;
  ListMoves countries_;
  PackagesDialog packagesDialog_;
  DistributionDialog distributionDialog_;
  ServedPapers papers_;
  ScannerSwitch scannerSwitch_;
  ScannedTyping scannedTyping_;
  int standsOn_ = 0;  ///< the package among which the user scans now; 0 for that of the table
  bool follows_ = false;
  std::string toldLine_;
  std::vector<std::string> works_;  ///< those that last, what began last behind the others
};

}  // namespace awizo::headless
