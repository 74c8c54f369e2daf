#pragma once

#include <string>
#include <vector>

#include "session/record/editor.h"

namespace awizo {

/// What is wrong with the document, or looks so, and where. It hinders nothing by itself: what may
/// be sent and saved is decided when the user does it.
struct DocumentFault {
  std::string where;         ///< "Строка 17"
  std::string what;          ///< "цена не число"
  Control* place = nullptr;  ///< a field of the header or a table
  int row = 0;               ///< of that table; 0 for the table or field itself
};

/// All of them: header, lines, what is left unpacked, packages.
std::vector<DocumentFault> faultsOf(const Editor& editor);

/// The user goes there: to the field, or to the row of the table. Refused where nobody can act on
/// it now.
void goTo(const DocumentFault& fault);

}  // namespace awizo
