#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "hosts/desktop/layouts/command_actions.h"
#include "hosts/desktop/program/main_window.h"
#include "hosts/desktop/window/waiting.h"
#include "session/awizo_wysylki.h"
#include "support/desktop/user.h"
#include "support/programs/demo_service.h"
#include "support/programs/workplace.h"

namespace awizo::test {

/// The program's window on a supplier's machine. The clock is fixed at 21 November 2026, 10:15.
class ProgramTest : public testing::Test {
 protected:
  ~ProgramTest() override;

  Options offLineOptions() const;
  /// Against the service, with settings in a file, where agreed addresses are kept.
  Options onLineOptions(const DemoService& service) const;
  /// Says that the user trusts the service's address already.
  void agreeTo(const DemoService& service) const;

  /// Opens the window and waits until its start has ended.
  void open(const Options& options);
  /// Shows the window; its start comes when the event loop runs.
  void show(const Options& options);
  void waitForStart();
  /// The window goes.
  void close() { window_.reset(); }
  /// Hears of the start of the session that the window has just begun.
  void follow();
  /// Waits until the window shows the start page; fails the test when it doesn't.
  desktop::StartPageWidget& waitForStartPage();
  /// Waits until the window has closed; fails the test when it doesn't.
  void waitForClosing();
  bool isClosed() const { return !window_->isVisible(); }

  desktop::MainWindow& window() { return *window_; }
  desktop::AwizoWysylkiWidget& widget() { return window_->widget(); }
  AwizoWysylki& control() { return widget().control(); }
  AwizoForm& form() { return control().form; }
  desktop::CommandActions& commands() { return widget().commands(); }
  desktop::Face& face(const Control& control) { return widget().faces().face(control); }

  /// Answers every box that comes while the act runs with the Enter key; returns what was seen.
  static std::vector<std::string> answerWithEnter(const std::function<void()>& act);

  /// A line that is entered in its dialog, whose boxes are answered with Enter.
  void addLine(const std::string& name, const std::string& despatched);

  /// A layout that moves another asks for one more turn of the event loop.
  static void letLayoutsSettle() {
    for (int turn = 0; turn < 5; ++turn) settle();
  }

  /// Leads the focus to the control by the Tab key alone.
  void tabTo(const Control& control);

  Workplace place;
  RecordFolder* records = nullptr;  ///< where windows record their work from now on

 private:
  std::unique_ptr<desktop::MainWindow> window_;
  bool started_ = false;
};

}  // namespace awizo::test
