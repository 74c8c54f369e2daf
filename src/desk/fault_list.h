#pragma once

#include <optional>
#include <vector>

#include "desk/document_faults.h"
#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/table.h"

namespace awizo {

/// The list of what is wrong with the document. It only shows; Enter or a double click chooses a
/// place to go to.
class FaultList : public Form {
 public:
  explicit FaultList(Screen& screen);

  Table grdFaults;  ///< where, what
  Button btnGo, btnClose;

  /// Shows the list until the user has chosen or closed it. Returns what was chosen.
  std::optional<DocumentFault> choose(std::vector<DocumentFault> faults);

 private:
  void fill();
  void btnGo_Click();

  std::vector<DocumentFault> faults_;
  std::optional<DocumentFault> chosen_;
};

}  // namespace awizo
