#pragma once

#include <set>
#include <string>
#include <vector>

#include "journal/tape.h"
#include "platform/forms/platform.h"

namespace awizo::journal {

/// What a replay asks of today's host, though the record has it too.
struct AskedToday {
  bool page = false;  ///< the address; the cookie always is today's
  bool clock = false;
  bool settings = false;
  std::set<std::string> properties;  ///< of the bag, by name
};

class TapedHttp : public Http {
 public:
  TapedHttp(Tape& tape, Http& real) : tape_(tape), real_(real) {}
  std::unique_ptr<HttpRequest> createRequest() override;

 private:
  Tape& tape_;
  Http& real_;
};

class TapedPage : public HostPage {
 public:
  TapedPage(Tape& tape, HostPage& real, const AskedToday& today)
      : tape_(tape), real_(real), today_(today) {}
  std::string url() override;
  std::string cookie() override;

 private:
  Tape& tape_;
  HostPage& real_;
  const AskedToday& today_;
};

class TapedBag : public PropertyBag {
 public:
  TapedBag(Tape& tape, PropertyBag& real, const AskedToday& today)
      : tape_(tape), real_(real), today_(today) {}
  std::string read(std::string_view name) override;
  void write(std::string_view name, std::string_view value) override;

 private:
  Tape& tape_;
  PropertyBag& real_;
  const AskedToday& today_;
};

class TapedHost : public ControlHost {
 public:
  TapedHost(const Tape& tape, ControlHost& real) : tape_(tape), real_(real) {}
  void propertyChanged(std::string_view name) override {
    if (!tape_.replaying()) real_.propertyChanged(name);
  }

 private:
  const Tape& tape_;
  ControlHost& real_;
};

class TapedSettings : public SettingsStore {
 public:
  TapedSettings(Tape& tape, SettingsStore& real, const AskedToday& today)
      : tape_(tape), real_(real), today_(today) {}
  std::string read(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view defaultValue) override;
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override;

 private:
  Tape& tape_;
  SettingsStore& real_;
  const AskedToday& today_;
};

class TapedFiles : public Files {
 public:
  TapedFiles(Tape& tape, Files& real) : tape_(tape), real_(real) {}
  std::string readAll(std::string_view path) override;
  void replace(std::string_view path, std::string_view bytes) override;
  std::unique_ptr<TextStream> createText(std::string_view path) override;
  std::unique_ptr<TextStream> continueText(std::string_view path) override;
  bool folderExists(std::string_view path) override;
  void makeFolder(std::string_view path) override;
  std::vector<std::string> folders(std::string_view path) override;
  std::vector<std::string> files(std::string_view path, std::string_view ending) override;
  std::vector<std::string> drives() override;

 private:
  Tape& tape_;
  Files& real_;
};

class TapedClock : public Clock {
 public:
  TapedClock(Tape& tape, const Clock& real, const AskedToday& today)
      : tape_(tape), real_(real), today_(today) {}
  Moment now() const override;
  Moment stamp() const override { return real_.now(); }

 private:
  Tape& tape_;
  const Clock& real_;
  const AskedToday& today_;
};

/// During a replay the screen shows nothing. When the user's turn comes, it shows at once what is
/// open then. A form that isn't recorded, a host's own, passes by the tape.
class TapedScreen : public ScreenFace {
 public:
  TapedScreen(Tape& tape, ScreenFace& real) : tape_(tape), real_(real) {}

  /// Does the next act of a replay.
  std::function<void(const Record& deed)> perform;
  /// The forms that are shown, the last on top.
  const std::vector<Form*>& opened() const { return opened_; }
  /// Shows what the replay has left open.
  void showAll();

  Answer ask(const MessageBox& box) override;
  void formOpened(Form& form) override;
  void runModal(Form& form) override;
  void cursorChanged(Cursor cursor) override;
  void workBegins(std::string_view what) override;
  void workEnds() override;
  void letEventsRun() override;
  void endProgram() override { real_.endProgram(); }

 private:
  bool isRecorded(const Form& form) const { return !tape_.isRecorded || tape_.isRecorded(form); }

  Tape& tape_;
  ScreenFace& real_;
  std::vector<Form*> opened_;
  std::vector<std::string> works_;
  Cursor cursor_ = Cursor::normal;
};

/// All surroundings of a control, with the tape between. Those given outlive it.
class TapedPlatform {
 public:
  TapedPlatform(Tape& tape, const Platform& real, AskedToday today = {});
  TapedPlatform(const TapedPlatform&) = delete;
  TapedPlatform& operator=(const TapedPlatform&) = delete;

 private:
  AskedToday today_;
  TapedHttp http_;
  TapedPage page_;
  TapedBag bag_;
  TapedHost host_;
  TapedSettings settings_;
  TapedFiles files_;
  TapedClock clock_;

 public:
  TapedScreen screen;
  const Platform platform;
};

}  // namespace awizo::journal
