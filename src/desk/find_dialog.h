#pragma once

#include <optional>
#include <string>

#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_field.h"
#include "session/record/editor.h"

namespace awizo {

/// Asks for a text and finds the next line that holds it. Where none does it says so and stays.
class FindDialog : public Form {
 public:
  FindDialog(Screen& screen, const Editor& editor);

  TextField txtWhat;
  Label lblNothing;  ///< that nothing was found; empty before
  Button btnFind, btnClose;

  /// Shows the dialog until a line is found or the user closes it. Returns the row of grdPozycje.
  std::optional<int> ask();
  /// The next line of the text asked for last.
  std::optional<int> again() const;

 private:
  void btnFind_Click();

  const Editor& editor_;
  std::optional<int> found_;
};

}  // namespace awizo
