#pragma once

#include <QMainWindow>
#include <QMenu>
#include <memory>

#include "desk/commands.h"
#include "hosts/common/given_host.h"
#include "hosts/common/options.h"
#include "hosts/common/program/machine.h"
#include "hosts/desktop/window/awizo_wysylki_widget.h"

namespace awizo::desktop {

/// The program's window: the control with a menu. It asks before an address is talked to for the
/// first time, leads the user to a folder for off-line work where there is none, and asks before a
/// changed document is lost.
class MainWindow : public QMainWindow {
 public:
  /// `http`: null for the network.
  explicit MainWindow(Options options, Http* http = nullptr);
  ~MainWindow() override;

  AwizoWysylkiWidget& widget() { return *widget_; }
  /// Could the control be set up?
  bool isUsable() const { return !widget_->hasFailed(); }

  /// Ends the session and begins another, as the program's start does.
  void startAgain();
  void chooseFolder();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void makeSession();
  void makeMenus();
  void fill(QMenu& menu, const CommandMenu& commands);
  QAction* makeTask(const Command& command);
  void perform(HostTask task);
  bool mayStart();
  bool hasFolder();
  bool agreesToAddresses();
  /// Whether the window may close now. While an order comes or a document goes, the user is asked
  /// while the work goes on, and a second closing closes.
  bool mayCloseNow();
  void askWhileWorking(const Question& question);

  const Options options_;
  Http* http_;
  OptionsPage page_;
  std::unique_ptr<OptionsBag> bag_;
  std::unique_ptr<SettingsStore> settings_;
  std::unique_ptr<Clock> clock_;
  AwizoWysylkiWidget* widget_ = nullptr;
  bool mayClose_ = false;
  bool asking_ = false;
  bool askedWhileWorking_ = false;
};

}  // namespace awizo::desktop
