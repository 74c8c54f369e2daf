#pragma once

#include <QAction>
#include <QKeySequence>
#include <map>
#include <vector>

#include "desk/commands.h"
#include "hosts/desktop/faces/form_face.h"

namespace awizo::desktop {

QKeySequence keysOf(const CommandKey& key);

/// Commands that press a form's buttons, as actions for menus and keys; the buttons get their icons
/// and tips.
class CommandActions : public QObject {
 public:
  /// The keys reach `window` and what is in it, or the control that they belong to. It belongs to
  /// the window.
  CommandActions(std::vector<Command> commands, FormFace& faces, QWidget& window);

  QAction* action(const Button& button) const { return entries_.at(&button).action; }

  /// Presses the button as its command does, without the host's question before it.
  void pressUnasked(const Button& button);
  /// Shows the buttons' states.
  void follow();

 private:
  struct Entry {
    const Command* command;
    QAction* action;
  };

  void add(const Command& command, QWidget& window);
  void giveKeys(const Command& command, QAction& action, QWidget& window);
  TableFace& tableOf(const Command& command) const;
  void press(const Command& command);
  void pressUnasked(const Command& command);
  /// Scrolls the row that the command acts on into sight.
  void showRow(const Command& command);

  FormFace& faces_;
  const std::vector<Command> commands_;
  std::map<const Button*, Entry> entries_;
};

}  // namespace awizo::desktop
