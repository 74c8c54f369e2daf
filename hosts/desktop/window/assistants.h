#pragma once

#include <QWidget>

#include "assistants/assistance.h"
#include "assistants/distribution_dialog.h"
#include "assistants/packages_dialog.h"
#include "hosts/desktop/window/host_screen_face.h"

namespace awizo::desktop {

/// The assistants in the window: each asks in a dialog what to do, and does it while the window
/// shows how far it is and lets the user stop it.
class Assistants {
 public:
  Assistants(const Assistance& with, HostScreenFace& face, Waiting& waiting, QWidget& window);

  void addPackages();
  void distribute();

  PackagesDialog& packagesDialog() { return packagesDialog_; }
  DistributionDialog& distributionDialog() { return distributionDialog_; }

 private:
  bool mayAct() const;
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
