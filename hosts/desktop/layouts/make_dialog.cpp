#include "hosts/desktop/layouts/make_dialog.h"

#include <QFormLayout>

#include "assistants/distribution_dialog.h"
#include "assistants/packages_dialog.h"
#include "desk/fault_list.h"
#include "desk/find_dialog.h"
#include "desk/number_range_dialog.h"
#include "desk/papers_dialog.h"
#include "formats/file_dialog.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "linedialog/dlg_dodaj.h"
#include "packagedialog/dlg_szczegoly.h"

namespace awizo::desktop {
namespace {

template <class DialogForm>
bool layOutAs(Form& form, FormDialog& dialog) {
  auto* known = dynamic_cast<DialogForm*>(&form);
  if (known == nullptr) return false;
  layOut(*known, dialog);
  return true;
}

}  // namespace

void layOut(Form& form, FormDialog& dialog) {
  auto* rows = new QFormLayout(&dialog);
  for (const Control* control : form.controls()) rows->addRow(dialog.faces().widget(*control));
}

FormDialog* makeDialog(Form& form, QWidget* parent) {
  auto* dialog = new FormDialog(form, parent);
  const bool known =
      layOutAs<DlgDodaj>(form, *dialog) || layOutAs<DlgdodajPule>(form, *dialog) ||
      layOutAs<DlgIsoCodes>(form, *dialog) || layOutAs<DlgSzczegoly>(form, *dialog) ||
      layOutAs<DlgWczytajZapisz>(form, *dialog) || layOutAs<FaultList>(form, *dialog) ||
      layOutAs<FindDialog>(form, *dialog) || layOutAs<PapersDialog>(form, *dialog) ||
      layOutAs<NumberRangeDialog>(form, *dialog) || layOutAs<PackagesDialog>(form, *dialog) ||
      layOutAs<DistributionDialog>(form, *dialog);
  if (!known) layOut(form, *dialog);
  dialog->makeScrollable();
  // A widget with a new parent must be shown again.
  dialog->faces().showAll();
  // Only now is it known what is hidden.
  dialog->takeRoom();
  return dialog;
}

}  // namespace awizo::desktop
