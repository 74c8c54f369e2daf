#pragma once

#include <optional>
#include <string>

#include "desk/number_offer.h"
#include "desk/number_range_dialog.h"
#include "numbers/given_numbers.h"
#include "platform/shared_store.h"
#include "session/awizo_wysylki.h"

namespace awizo::headless {

/// The firm's package numbers, offered to a user in the package dialog; their range is set in a
/// dialog of its own.
class ServedNumbers {
 public:
  /// All outlive it. `ofBrowser`: the numbers are a browser's own.
  ServedNumbers(SharedStore& store, const Clock& clock, AwizoWysylki& control, bool ofBrowser);
  ~ServedNumbers();
  ServedNumbers(const ServedNumbers&) = delete;
  ServedNumbers& operator=(const ServedNumbers&) = delete;

  NumberOffer& offer() { return offer_; }
  Form& rangeDialog() { return rangeDialog_; }
  /// Over the document, or over the package that wants a number.
  void showRange();
  // A dialog has come up for the user, and has gone.
  void opened(const Form& form);
  void closed(const Form& form);
  /// The words beside the number in the dialog, where it is another than when this was asked last.
  std::optional<std::string> changedWords();

 private:
  AwizoWysylki& control_;
  GivenNumbers numbers_;
  NumberOffer offer_;
  NumberRangeDialog rangeDialog_;
  int observation_;
  std::optional<std::string> number_;  ///< the words on it were asked for last
};

}  // namespace awizo::headless
