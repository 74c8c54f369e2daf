#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "journal/recording.h"
#include "support/control/test_control.h"

namespace awizo::test {

/// A control whose surroundings go over a tape. Its user links awizo_journal.
struct TapedControl {
  /// Nothing is written where `file` is null.
  explicit TapedControl(GrowingFile* file, std::vector<journal::Record> replayed = {})
      : tape(std::move(replayed), file),
        desk("ru_RU", [this](const Platform& real) -> const Platform& {
          platform = std::make_unique<journal::TapedPlatform>(tape, real);
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

}  // namespace awizo::test
