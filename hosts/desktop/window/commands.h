#pragma once

#include <QAction>
#include <map>
#include <vector>

#include "desk/commands.h"
#include "hosts/desktop/faces/form_face.h"

namespace awizo::desktop {

/// The commands that press a button of the main form, as actions for menus and keys.
class Commands : public QObject {
 public:
  /// The keys reach `window` and what is in it, or the control that they belong to.
  Commands(AwizoForm& form, FormFace& faces, QWidget& window);

  const std::vector<CommandMenu>& menus() const { return menus_; }
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
  void press(const Command& command);
  void pressUnasked(const Command& command);
  /// Scrolls the row that the command acts on into sight.
  void showRow(const Command& command);

  FormFace& faces_;
  std::vector<CommandMenu> menus_;
  std::map<const Button*, Entry> entries_;
};

}  // namespace awizo::desktop
