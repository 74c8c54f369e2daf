#pragma once

#include "linedialog/dlgdodaj_pule.h"
#include "session/record/work.h"

namespace awizo {

class DlgDodaj;

/// The section of the line dialog that says which packages hold how much of the line: the table of
/// assignments with the buttons that add, take out and change one.
class LinePackages {
 public:
  LinePackages(Work& work, DlgDodaj& dialog, DlgdodajPule& quantityDialog)
      : work_(work), dialog_(dialog), quantityDialog_(quantityDialog) {}

  /// Widths, alignments and headings of the table.
  void setUpTable();

  /// What can still be put into packages; negative when too much lies in them.
  double GetMaxQuantity();
  /// Shows the sum of the assigned quantities.
  void UpdatePackedQuantity();
  /// Enables the three buttons by what is left to pack.
  void SetButtons();

  // What the buttons do: add an assignment, take the current one out, change it.
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();

  /// A box where more is despatched than lies in packages.
  void tellWhatIsUnpacked();

 private:
  int packageBound() const;
  void addAssignment();
  void writeAssignment(int row);

  Work& work_;
  DlgDodaj& dialog_;
  DlgdodajPule& quantityDialog_;
};

}  // namespace awizo
