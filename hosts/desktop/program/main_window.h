#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <functional>
#include <memory>
#include <optional>

#include "desk/commands.h"
#include "hosts/common/given_host.h"
#include "hosts/common/machine/machine.h"
#include "hosts/common/options.h"
#include "hosts/desktop/window/awizo_wysylki_widget.h"
#include "hosts/desktop/window/start_page_widget.h"

namespace awizo::journal {
struct UnfinishedWork;
}

namespace awizo::desktop {

/// The program's window: the control with a menu, or the start page while there is no control. It
/// asks before an address is talked to for the first time, leads the user to a folder for off-line
/// work where there is none, and asks before a changed document is lost.
class MainWindow : public QMainWindow {
 public:
  /// `http`: null for the network. `records`: where sessions are recorded, null for nowhere; work
  /// that was left behind there is offered first.
  explicit MainWindow(Options options, Http* http = nullptr, RecordFolder* records = nullptr);
  ~MainWindow() override;

  /// Whether there is a control; else there is the start page.
  bool hasSession() const { return widget_ != nullptr; }
  AwizoWysylkiWidget& widget() { return *widget_; }
  StartPageWidget& startPage() { return *startPage_; }
  /// False where the control couldn't be set up.
  bool isUsable() const { return widget_ == nullptr || !widget_->hasFailed(); }

  /// Opens a launch file or a saved document, by its path as the system knows it; the document that
  /// is in the window is asked about first. What is no launch file is named on the start page, or
  /// in a box where there is a session.
  void openFile(const QString& path);

  /// Whether the session is the one that the program was started with.
  bool showsLaunched() const;

  /// Ends the session and begins another, as the program's start does.
  void startAgain();
  void chooseFolder();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void begin();
  /// Asks whether to go on with work that was left behind; answers whether that has begun.
  bool takesUpUnfinishedWork();
  std::optional<journal::UnfinishedWork> workLeftBehind() const;
  /// Answers whether that has begun; the user is told where the record can't be read.
  bool goOnWith(const journal::UnfinishedWork& work);
  void giveUp(const std::string& record);
  void beginOffLine(const Partner& partner);
  void beginByLaunchFile(const QString& path);
  void makeSession();
  /// `why`: words for the user, empty for none.
  void showStartPage(const std::string& why);
  void showPart(QWidget* part);
  /// What is in the window goes.
  void dropPart();
  GivenParts givenParts();
  /// After a start, whatever came of it.
  void lookAtStart();
  /// Whether the document in the window may go, so that another session may begin.
  bool mayBeginAnother();
  bool isWorking() const;
  void openDocument(const std::string& path);
  void chooseLaunchFile();
  Answer ask(const MessageBox& box);
  void makeMenus();
  void fill(QMenu& menu, const CommandMenu& commands);
  QAction* makeTask(const Command& command);
  /// Names what can be taken back and done again.
  void nameSteps();
  void perform(HostTask task);
  bool mayStart();
  /// Whether the window may close now. While an order comes or a document goes, the user is asked
  /// while the work goes on, and a second closing closes.
  bool mayCloseNow();
  void askWhileWorking(const Question& question);

  const Options launch_;  ///< what the program was asked at its start
  Options options_;       ///< of the session
  Http* http_;
  RecordFolder* records_ = nullptr;
  journal::RecordedSession replayed_;  ///< of the session that begins
  std::string replayedName_;
  OptionsPage page_;
  std::unique_ptr<OptionsBag> bag_;
  std::unique_ptr<SettingsStore> settings_;
  std::unique_ptr<Clock> clock_;
  AwizoWysylkiWidget* widget_ = nullptr;
  StartPageWidget* startPage_ = nullptr;
  QPointer<QAction> takeBack_;
  QPointer<QAction> doAgain_;
  bool fromStartPage_ = false;        ///< the session was begun there
  bool replayHasFailed_ = false;      ///< the work that was left behind can't go on
  std::string whyNot_;                ///< why the last session wasn't to start
  std::function<void()> afterStart_;  ///< what follows once the session has started
  bool wasShown_ = false;
  bool mayClose_ = false;
  bool asking_ = false;
  bool askedWhileWorking_ = false;
};

}  // namespace awizo::desktop
