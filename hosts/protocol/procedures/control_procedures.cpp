#include "hosts/protocol/procedures/control_procedures.h"

namespace awizo::protocol {

void addProcedures(Procedures& procedures, AwizoWysylki& control) {
  addConversionProcedures(procedures, control.editor);
  addHostProcedures(procedures, control);
  addDocumentProcedures(procedures, control);
  addTableProcedures(procedures, control);
  addCommitProcedures(procedures, control);
  addLineDialogProcedures(procedures, control);
  addSortProcedures(procedures, control);
  addPackageDialogProcedures(procedures, control);
}

}  // namespace awizo::protocol
