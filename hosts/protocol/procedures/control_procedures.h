#pragma once

#include "hosts/protocol/procedures/procedures.h"
#include "session/awizo_wysylki.h"

namespace awizo::protocol {

// The control's procedures that a line can call, by their own names, a dialog's by form and name:
// those with a stated interface whose arguments and results are texts, numbers, Booleans, dates or
// arrays of these. A call of a dialog's own is a touch of the dialog.

void addConversionProcedures(Procedures& procedures, Editor& editor);
void addHostProcedures(Procedures& procedures, AwizoWysylki& control);
void addDocumentProcedures(Procedures& procedures, AwizoWysylki& control);
void addTableProcedures(Procedures& procedures, AwizoWysylki& control);
void addCommitProcedures(Procedures& procedures, AwizoWysylki& control);
void addLineDialogProcedures(Procedures& procedures, AwizoWysylki& control);
void addSortProcedures(Procedures& procedures, AwizoWysylki& control);
void addPackageDialogProcedures(Procedures& procedures, AwizoWysylki& control);

/// All of them.
void addProcedures(Procedures& procedures, AwizoWysylki& control);

}  // namespace awizo::protocol
