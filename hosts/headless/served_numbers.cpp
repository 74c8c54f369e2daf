#include "hosts/headless/served_numbers.h"

#include "desk/layout_words.h"

namespace awizo::headless {

ServedNumbers::ServedNumbers(SharedStore& store, const Clock& clock, AwizoWysylki& control,
                             bool ofBrowser)
    : control_(control),
      numbers_(store, clock),
      offer_(numbers_, control.editor, control.dlgSzczegoly),
      rangeDialog_(control.screen, numbers_),
      observation_(control.form.deeds.add([this](const Deed& deed) {
        if (deed.kind != Deed::Kind::notRead && deed.keepsDocument()) offer_.documentKept();
      })) {
  if (!ofBrowser) return;
  rangeDialog_.lblPlace.setCaption(words::numbersOfBrowser);
  offer_.noRangeWords = words::browserHasNoNumbers;
}

ServedNumbers::~ServedNumbers() { control_.form.deeds.remove(observation_); }

void ServedNumbers::showRange() {
  const DlgSzczegoly& dialog = control_.dlgSzczegoly;
  if (!control_.form.takesInput() && !dialog.takesInput()) return;
  rangeDialog_.show(control_.editor.session.SellerILN);
  if (!dialog.shown()) return;
  offer_.rangeShown();
  number_.reset();
}

void ServedNumbers::opened(const Form& form) {
  if (&form == &control_.dlgSzczegoly) offer_.opened();
}

void ServedNumbers::closed(const Form& form) {
  if (&form == &control_.dlgSzczegoly) offer_.closed();
}

/// Whoever else has a number is looked up in files, so not at each line.
std::optional<std::string> ServedNumbers::changedWords() {
  const DlgSzczegoly& dialog = control_.dlgSzczegoly;
  if (!dialog.shown()) {
    number_.reset();
    return std::nullopt;
  }
  if (number_ == dialog.txtSerialNumberN.text()) return std::nullopt;
  number_ = dialog.txtSerialNumberN.text();
  return offer_.words();
}

}  // namespace awizo::headless
