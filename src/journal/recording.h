#pragma once

#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "journal/taped_platform.h"
#include "platform/at_exit.h"
#include "session/awizo_wysylki.h"

namespace awizo::journal {

/// Ties a control to the tape over which its surroundings go. The host calls start() instead of the
/// control's first events, and does through doHostAct() what it calls of the control; the user acts
/// on the forms as ever.
class Recording {
 public:
  /// The control was made on the surroundings of `taped`. All outlive this.
  Recording(Tape& tape, TapedPlatform& taped, AwizoWysylki& control);
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  /// Does what the host once did, by its name and the rest of the texts. Without it the acts below
  /// are done, and a host has no others.
  std::function<void(const std::vector<std::string>& texts)> performHostAct;

  // What every host does of the control, recorded.
  void show();
  void setProperty(const std::string& name, const std::string& value);
  void askOffLineFolder();

  /// Told when a replay is over and the user's turn comes, with all on the screen that is open
  /// then.
  std::function<void()> onLive;

  /// The two steps of start(), for a host that shows the control in between.
  void create();
  void replay();
  /// Creates the control: UserControl_Initialize and UserControl_ReadProperties. Then it replays
  /// what the tape holds; a form or box that is open at its end waits for the user as ever. Throws
  /// ReplayDiffers.
  void start();

  /// Does something of the host's. What `refusal` throws counts as nothing done.
  template <class Deed>
  auto doHostAct(const std::vector<std::string>& texts, Deed&& deed);

 private:
  void perform(const Record& deed);
  void performOwn(const std::vector<std::string>& texts);
  void setViewHeight(const std::string& form, const std::string& table, int height);

  Tape& tape_;
  AwizoWysylki& control_;
};

/// What tells a host's act that was refused: see Recording::doHostAct.
template <class Deed>
auto Recording::doHostAct(const std::vector<std::string>& texts, Deed&& deed) {
  tape_.beginsHostAct(texts);
  const AtExit ends([this, exceptions = std::uncaught_exceptions()] {
    if (tape_.running()) tape_.ends(std::uncaught_exceptions() == exceptions);
  });
  try {
    return deed();
  } catch (const RunTimeError&) {
    // The procedure ran, and ended so.
    tape_.ends(true);
    throw;
  } catch (const std::exception&) {
    tape_.refused();
    throw;
  }
}

}  // namespace awizo::journal
