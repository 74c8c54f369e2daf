#pragma once

#include <QLabel>
#include <QPointer>

#include "adapters/posix/posix_shared_store.h"
#include "desk/number_offer.h"
#include "desk/number_range_dialog.h"
#include "hosts/desktop/window/host_screen_face.h"

namespace awizo::desktop {

/// The firm's package numbers in the window: offered in the package dialog, with words beside the
/// field; their range is set in a dialog of its own.
class PackageNumbers {
 public:
  /// `beginning`: of the paths of the files that hold the numbers. `face` shows the dialogs.
  PackageNumbers(const Editor& editor, DlgSzczegoly& dialog, const std::string& beginning,
                 const Clock& clock, HostScreenFace& face);

  void showRange();
  NumberOffer& offer() { return offer_; }
  NumberRangeDialog& rangeDialog() { return rangeDialog_; }
  std::vector<DocumentFault> faults() { return offer_.faults(); }

 private:
  void opened();
  void showWords();

  const Editor& editor_;
  DlgSzczegoly& dialog_;
  HostScreenFace& face_;
  PosixSharedStore store_;
  GivenNumbers numbers_;
  NumberOffer offer_;
  NumberRangeDialog rangeDialog_;
  QPointer<QLabel> words_;
};

}  // namespace awizo::desktop
