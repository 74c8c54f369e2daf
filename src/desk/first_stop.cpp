#include "desk/first_stop.h"

namespace awizo {

Control* firstStop(AwizoWysylki& control, const Form& dialog) {
  // The first package again, whatever was chosen before.
  if (&dialog == &control.dlgdodajPule) return &control.dlgdodajPule.cboxPackages;
  if (&dialog == &control.dlgSzczegoly) return &control.dlgSzczegoly.cboxPackageType;
  return nullptr;
}

}  // namespace awizo
