#pragma once

#include <optional>
#include <vector>

#include "assistants/distributing.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"

namespace awizo {

/// What the user has agreed to.
struct DistributionOrder {
  DistributionChoice choice;
  std::vector<LinePlan> plans;
};

/// Asks which lines go into which packages, and how; shows what will come of it before it is done.
class DistributionDialog : public Form {
 public:
  /// Of grdParts; its texts are the longest.
  static constexpr int packageColumn = 2;

  explicit DistributionDialog(const Editor& editor);

  DropDownList cboLines, cboPackages, cboSpread;
  TextField txtEach;
  Table grdParts;    ///< line, goods, package, quantity
  Label lblSummary;  ///< or why there is nothing to do
  Button btnDo, btnClose;

  /// Nothing where the user leaves the dialog.
  std::optional<DistributionOrder> ask();

 private:
  DistributionChoice choice() const;
  std::vector<int> chosenLines() const;
  std::vector<int> chosenPackages() const;
  std::string refusal() const;
  void remake();
  void showParts();
  void btnDo_Click();

  const Editor& editor_;
  DistributionOrder order_;
  bool isFilling_ = false;
  bool isAccepted_ = false;
};

}  // namespace awizo
