#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/partners.h"
#include "formats/file_dialog.h"
#include "journal/unfinished_work.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/platform.h"
#include "session/record/session_state.h"

namespace awizo {

/// The partner that a saved document is for, or why there is none, in Russian.
struct FoundPartner {
  const Partner* partner = nullptr;
  std::string why;
};

/// A screen of its own, made before the form on it.
struct OwnScreen {
  explicit OwnScreen(ScreenFace& face) : ownScreen(face) {}
  Screen ownScreen;
};

/// What a window shows while there is no control yet: the ways to begin. It decides nothing about
/// the control; what the user has chosen goes to the host.
class StartPage : private OwnScreen, public Form {
 public:
  explicit StartPage(const Platform& platform);

  Label lblWhy;  ///< why there is no editor now; hidden where the user knows
  Button btnAgain;

  Frame frmUnfinished;  ///< hidden where no work was left behind
  Label lblUnfinished;
  Button btnGoOn;

  Frame frmOffLine;
  Label lblFolder, lblSeller;
  Label lblMissing;  ///< what keeps from working off line; hidden where nothing does
  DropDownList cboxPartner;
  Button btnOffLine, btnOpen, btnFolder;

  Frame frmOnLine;
  Label lblOnLine;
  Button btnLaunchFile;

  /// Chooses the folder of off-line work.
  DlgWczytajZapisz dlgFolder;

  /// The user has chosen to work with the partner; the host begins. So do the others.
  std::function<void(const Partner&)> onOffLine;
  /// The same, and the user is asked for a file to open.
  std::function<void(const Partner&)> onOpen;
  Event onLaunchFile;
  /// The work that was left behind is to go on.
  std::function<void(const journal::UnfinishedWork&)> onGoOn;
  /// What was refused is tried again.
  Event onAgain;

  /// Shows the page as the main form. `why`: words for the user, empty for none. `mayTryAgain`:
  /// whether something was tried.
  void show(std::string_view why, bool mayTryAgain);
  /// Offers to go on with the work that was left behind, if any.
  void offer(const std::optional<journal::UnfinishedWork>& work);
  /// Reads the folder again.
  void refresh();
  /// The partner in the folder that the saved document of this classic path is for.
  FoundPartner partnerOf(std::string_view path) const;

 private:
  void chooseFolder();
  void begin(const std::function<void(const Partner&)>& way) const;

  const Platform& platform_;
  SessionState session_;  ///< the folder dialog's
  FolderContent content_;
  std::optional<journal::UnfinishedWork> unfinished_;
};

}  // namespace awizo
