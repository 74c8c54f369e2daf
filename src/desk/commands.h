#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "linedialog/dlg_dodaj.h"
#include "linedialog/dlg_iso_codes.h"
#include "session/record/awizo_form.h"

namespace awizo {

/// A key pressed alone or with others; `code` as keys.h numbers keys.
struct CommandKey {
  std::int16_t code = 0;
  bool control = false;
  bool shift = false;
  bool operator==(const CommandKey&) const = default;
};

/// What a command does that no button of the form does: the host does it.
enum class HostTask {
  none,
  chooseFolder,
  startAgain,
  quit,
  takeBack,
  doAgain,
  findLine,
  findAgain,
  showFaults,
  showLabels,
  showPackingList,
  showPackageSheets,
  showPapersOfFile,
  showNumbers,
  showPackingCsv,
  addPackages,
  distribute,
  showPacking,
  scannerPacks,
  showGuide,
  showAbout
};

/// What the user can do to the document, for menus and keys. A command that presses a button of the
/// form moves no focus, and is there as the button is.
struct Command {
  std::string_view words;      ///< "&" before the mnemonic letter
  std::string_view icon = "";  ///< name of the picture; empty for none
  Button* button = nullptr;    ///< null where the host has a task
  HostTask task = HostTask::none;
  std::vector<CommandKey> keys = {};
  const Control* place = nullptr;  ///< its keys work while this has the focus; null: anywhere
  bool isSwitch = false;           ///< on or off, which the host shows
  /// It acts on the current row of that table, which must be seen before.
  bool onCurrentRow = false;
  /// A double click in that table does the same, after what the table itself does.
  bool onDoubleClick = false;

  /// The words without the mnemonic's mark and the dots that announce a question: "Открыть".
  std::string plainWords() const;
  /// Of its button. `key`: the host's name of its first key.
  std::string tip(std::string_view key) const;
  bool isVisible() const { return button == nullptr || button->visible(); }
  bool isEnabled() const;
};

/// A menu: its heading, and its commands in groups with a line between them.
struct CommandMenu {
  std::string_view heading;
  std::vector<std::vector<Command>> groups;
};

// The groups that press buttons of the form: the document's ways in and out, its lines, its
// packages, the country that is written over all lines.
std::vector<Command> documentCommands(AwizoForm& form);
std::vector<Command> lineCommands(AwizoForm& form);
std::vector<Command> packageCommands(AwizoForm& form);
std::vector<Command> countryCommands(AwizoForm& form);

/// The keys of the line dialog: packages of the line, the list of all countries.
std::vector<Command> lineDialogCommands(DlgDodaj& dialog);
/// In the list of all countries, from which a double click chooses as from any list.
std::vector<Command> countryListCommands(DlgIsoCodes& dialog);

/// The menus, from the left.
std::vector<CommandMenu> commandMenus(AwizoForm& form);
/// Those of the menus that press buttons.
std::vector<Command> buttonCommands(const std::vector<CommandMenu>& menus);
/// Takes the keys out that a browser keeps to itself.
void leaveToBrowser(std::vector<CommandMenu>& menus);
/// The menus beside the start page.
std::vector<CommandMenu> startMenus();

}  // namespace awizo
