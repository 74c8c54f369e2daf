#pragma once

#include <QLocale>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "desk/question.h"
#include "hosts/desktop/window/surroundings.h"

namespace awizo {
class AwizoWysylki;
class DocumentWatch;
class NumberRangeDialog;
class ScannerSwitch;
}  // namespace awizo

namespace awizo::journal {
class History;
}

namespace awizo::desktop {

class Assistants;
class CommandActions;
class Finder;
class PackingPane;
class PaperMaker;
class FormFace;

/// The locale in which Qt writes dates and times: that of the name, else the environment's; ru_RU
/// where neither names one. A program makes it the default before it makes windows.
QLocale localeNamed(const std::string& name);

/// The control `AwizoWysylki` as a widget. Shown for the first time it starts its work by itself:
/// it reads the local folder and, on line, talks to the service, while the window keeps painting
/// and takes no input. At the end of its life it keeps the folder in the settings.
class AwizoWysylkiWidget : public QWidget {
  Q_OBJECT
  /// "Off" means off-line, any other text on-line.
  Q_PROPERTY(QString OnLine READ onLine WRITE setOnLine NOTIFY onLineChanged)
  /// Empty where the property holds no 16-bit number.
  Q_PROPERTY(QString DebugLevel READ debugLevel WRITE setDebugLevel NOTIFY debugLevelChanged)

 public:
  explicit AwizoWysylkiWidget(const GivenParts& given, QWidget* parent = nullptr);
  ~AwizoWysylkiWidget() override;

  QString onLine() const;
  void setOnLine(const QString& value);
  QString debugLevel() const;
  void setDebugLevel(const QString& value);

  /// Asked before the work starts; while the answer is no, nothing is read or sent. May be empty.
  std::function<bool()> mayStart;
  bool hasStarted() const { return started_; }
  /// The record of an earlier session came to another state than it had then.
  bool replayFailed() const { return replayFailed_; }
  /// Starts the work, as the first showing does.
  void start();

  /// What becomes of the document, and the questions before it would be lost.
  DocumentWatch& watch();
  /// Shows a question while work goes on, and reports what the user has chosen. When the work ends
  /// first, that is the harmless choice.
  void askWhileWorking(const Question& question, std::function<void(Choice)> chosen);
  /// Whether an exchange runs or the user is asked something, so that the widget can't go yet.
  bool isWorking() const;
  /// Ends all work under way: exchanges are cut off, boxes and dialogs close.
  void endWork();
  /// Couldn't be set up; the user was shown why.
  bool hasFailed() const;

  /// Asks the user a question of the host's own, over whatever is on top.
  Answer ask(const MessageBox& box);
  /// Lets the user choose the folder of off-line work; answers whether there is one now.
  bool askOffLineFolder();

  /// Opens the file of this classic path by the control's own button and dialog. The document that
  /// was there is gone.
  void openDocument(const std::string& path);

  /// What of the work can be taken back and done again.
  const journal::History& history() const;
  void takeBack();
  void doAgain();

  AwizoWysylki& control();
  FormFace& faces();
  CommandActions& commands();
  Finder& finder();
  PaperMaker& paperMaker();
  /// Lets the user set the range of package numbers, where the firm has any.
  void showNumberRange();
  /// Only where the firm has one.
  NumberRangeDialog& numberRangeDialog();
  Assistants& assistants();
  PackingPane& packingPane();
  ScannerSwitch& scannerSwitch();
  Waiting& waiting();

 signals:
  /// The title of the window that shows the document, and what was done last.
  void standingChanged();
  /// What can be taken back or done again may be something else now.
  void historyChanged();
  void onLineChanged();
  void debugLevelChanged();
  /// The start is over, whatever came of it.
  void startEnded();

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Parts;

  void connectRecording();
  void makeCurtain();
  void growWindow();
  void tellOfRecording(const std::string& why);
  template <class Replay>
  void replayOr(Replay&& replay);

  void travel(void (journal::History::*act)(), const std::string& done);
  void showStates();
  /// Shows the document's state, once whatever changes it now is over.
  void showStandingSoon();
  void showStanding();

  std::unique_ptr<Parts> parts_;
  QPointer<QWidget> curtain_;  ///< over all that is shown, until the control starts
  bool startAsked_ = false;
  bool started_ = false;
  bool replayFailed_ = false;
  bool standingIsDue_ = false;
};

}  // namespace awizo::desktop
