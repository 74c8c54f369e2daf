#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "journal/loading.h"
#include "journal/record_file.h"
#include "journal/recording.h"
#include "platform/growing_file.h"
#include "platform/run_time_error.h"
#include "support/control/test_control.h"

namespace awizo::test {

/// A record in memory; after so many bytes the disk is full.
struct MemoryRecord : GrowingFile {
  std::string bytes;
  std::size_t room = std::string::npos;
  int flushes = 0;

  void append(std::string_view more) override {
    if (bytes.size() + more.size() > room) {
      bytes += more.substr(0, room - bytes.size());
      throw errors::diskFull();
    }
    bytes += more;
  }
  void flush() override { ++flushes; }
};

/// What a tape has written there, without a header of its own.
inline journal::RecordedSession sessionIn(const MemoryRecord& record) {
  return journal::recordedSession(journal::fileBeginning() +
                                  journal::framed(journal::headerRecord({})) + record.bytes);
}

/// A control whose surroundings go over a tape. Its user links awizo_journal.
struct TapedControl {
  /// What stands between the tape and the screen.
  using Between = std::function<ScreenFace&(ScreenFace& real)>;

  static ScreenFace& unchanged(ScreenFace& real) { return real; }

  /// Nothing is written where `file` is null.
  explicit TapedControl(GrowingFile* file, std::vector<journal::Record> replayed = {},
                        const Between& between = unchanged, std::string_view localeName = "ru_RU",
                        TextsBeside* beside = nullptr)
      : tape(std::move(replayed), file, beside),
        desk(localeName, [this, &between](const Platform& real) -> const Platform& {
          const Platform under{.xml = real.xml,
                               .http = real.http,
                               .page = real.page,
                               .bag = real.bag,
                               .host = real.host,
                               .settings = real.settings,
                               .files = real.files,
                               .clock = real.clock,
                               .locale = real.locale,
                               .screenFace = between(real.screenFace),
                               .version = real.version};
          platform = std::make_unique<journal::TapedPlatform>(tape, under);
          return platform->platform;
        }) {
    recording = std::make_unique<journal::Recording>(tape, *platform, desk.control);
    recording->performHostAct = [this](const std::vector<std::string>& texts) { doHostAct(texts); };
  }

  void show() { doHostAct({"show"}); }
  /// "show", as hosts do it; "error" ends by a run-time error. All else is refused.
  void doHostAct(const std::vector<std::string>& texts) {
    recording->doHostAct(texts, [&] {
      if (texts.front() == "error") throw errors::overflow();
      if (texts.front() != "show" || desk.form.shown()) throw Refused("not now");
      desk.control.UserControl_Show();
    });
  }

  journal::Tape tape;
  std::unique_ptr<journal::TapedPlatform> platform;
  TestControl desk;
  std::unique_ptr<journal::Recording> recording;
};

inline void startOffLine(TapedControl& session) {
  session.desk.prepareFolder();
  session.desk.files.put(TestControl::partnerFile, TestControl::partnerInfo("ООО Покупатель"));
  session.desk.bag.values["OnLine"] = "Off";
  session.recording->start();
  session.show();
}

}  // namespace awizo::test
