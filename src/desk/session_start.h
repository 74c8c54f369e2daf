#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "desk/addresses.h"
#include "desk/partners.h"
#include "platform/forms/screen_face.h"
#include "session/record/awizo_form.h"
#include "session/record/properties.h"

namespace awizo {

/// Off line with the partner, as the start page begins it.
GivenSession offLineSession(const Partner& partner);

/// What a host does next before it starts a session.
struct StartStep {
  enum class Kind {
    ask,           ///< shows `box` and hands over the answer
    chooseFolder,  ///< lets the user choose the folder of off-line work
    start,
    refuse  ///< doesn't start; `refusal` says why on the start page
  };
  Kind kind = Kind::start;
  MessageBox box = {};
  std::string refusal = {};
};

/// What has to be clear before a session starts, one step after another: that the user trusts each
/// place that is talked to, and that there is a folder with the files of the user's firm. Nothing
/// is read or sent before.
class SessionStart {
 public:
  /// `form`: of a control that has read its properties.
  SessionStart(const AwizoForm& form, const GivenSession& given, SettingsStore& settings,
               const SplitAddress& split);

  /// The step to take now. After it has been taken the next one is asked for.
  StartStep next();
  /// The user's answer to the box of the last step.
  void answer(Answer answer);

 private:
  StartStep nextForFolder();

  SettingsStore& settings_;
  AgreedAddresses agreed_;
  std::vector<std::string> newOrigins_;  ///< not agreed to yet; the first is asked about
  bool refused_ = false;
  bool folderAnnounced_ = false;
  bool folderAsked_ = false;
};

}  // namespace awizo
