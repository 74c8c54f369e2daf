#pragma once

#include <QWidget>

#include "assistants/assistance.h"
#include "assistants/distribution_dialog.h"
#include "assistants/packages_dialog.h"
#include "assistants/scanned_unit.h"
#include "hosts/desktop/window/host_screen_face.h"

namespace awizo::desktop {

/// The assistants in the window: each asks in a dialog what to do, and does it while the window
/// shows how far it is and lets the user stop it.
class Assistants {
 public:
  Assistants(const Assistance& with, HostScreenFace& face, Waiting& waiting, QWidget& window);

  void addPackages();
  void distribute();
  /// What is left of these lines goes into this package; both are rows of their tables.
  void packRest(const std::vector<int>& lines, int package);
  /// Returns words for the user.
  std::string packScannedUnit(std::string_view ean) { return awizo::packScannedUnit(with_, ean); }

  PackagesDialog& packagesDialog() { return packagesDialog_; }
  DistributionDialog& distributionDialog() { return distributionDialog_; }

 private:
  bool mayAct() const;
  void distribute(const DistributionOrder& order);
  /// Runs what can be stopped by the user, and by the window's end. `words`: before the numbers.
  AssistantReport run(const QString& words,
                      const std::function<AssistantReport(const GoOn& goOn)>& work);
  void tell(const std::string& words);

  Assistance with_;
  HostScreenFace& face_;
  Waiting& waiting_;
  QWidget& window_;
  PackagesDialog packagesDialog_;
  DistributionDialog distributionDialog_;
};

}  // namespace awizo::desktop
