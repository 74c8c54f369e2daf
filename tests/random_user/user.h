#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "random_user/dice.h"
#include "random_user/invariants.h"
#include "random_user/outages.h"

namespace awizo::test {

/// How a session begins.
struct Beginning {
  std::string localeName = "ru_RU";
  bool onLine = false;
  bool logOpen = false;
  bool outages = false;  ///< disks and service fail now and then once the control has started
};

/// Who listens to a session, and starts it.
struct Listener {
  /// What the control gets instead of its surroundings.
  std::function<const Platform&(const Platform&)> between;
  std::function<void(AwizoWysylki&)> start;
};

/// A user who does anything that the forms let him do, by chance, on a control of his own.
class RandomUser {
 public:
  RandomUser(Dice& dice, const Beginning& beginning);
  RandomUser(Dice& dice, const Beginning& beginning, const Listener& listener);

  /// Does one thing on the main form, with all that follows on the dialogs it opens.
  void act();
  /// What is wrong now; empty where all is well.
  std::vector<std::string> complaints();

  AwizoWysylki& control() { return desk_.control; }
  /// Called after each thing that the user did, in dialogs too.
  std::function<void()> onAction;

  const Trust& trust() const { return trust_; }
  /// The last things that were done, one a line.
  std::string history() const;
  int actions() const { return actions_; }
  int documents() const { return documents_; }
  /// Boxes that reported a failed save or request.
  int failures() const { return failures_; }
  int linesAndPackages() const { return desk_.session.LineCount + desk_.session.IloscPozycjiOpak; }

 private:
  void prepare(const Beginning& beginning);
  void prepareReply(const std::string& text);
  void actOnModal(Form& form);
  void fillPlausibly(Form& form);
  void fillText(TextField& field);
  void fillList(DropDownList& list);
  void actOn(Control& control);
  void actOnText(TextField& field);
  void actOnList(DropDownList& list);
  void actOnButton(Button& button);
  void actOnTable(Table& table);
  void actOnFiles(Control& control);
  /// Does a thing that the form may refuse.
  void attempt(const std::string& what, const std::function<void()>& action);
  Control& anyControl(Form& form);
  /// Completes the header and saves or sends, which takes long to happen by chance.
  void keepDocument();
  void lookAround();
  void lookAtBoxes();
  void lookAtDocuments();
  void requireDocument(const std::string& text, const std::string& where);

  Dice& dice_;
  TestControl desk_;
  bool withOutages_;
  Outages outages_{dice_, desk_};
  Trust trust_;
  std::vector<std::string> complaints_;
  std::deque<std::string> history_;
  std::size_t postedBefore_ = 0;
  bool documentKept_ = false;  ///< since the files were last looked at
  int actions_ = 0;
  int documents_ = 0;
  int failures_ = 0;
};

}  // namespace awizo::test
