#pragma once

#include <string>
#include <variant>
#include <vector>

#include "session/record/awizo_form.h"

namespace awizo {

/// What a field of the header holds after the form was emptied.
enum class WhenEmptied { nothing, today, asBefore };

/// A field of the header that the user fills.
struct HeaderField {
  std::variant<TextField*, DatePicker*, TimePicker*, DropDownList*> control;
  WhenEmptied whenEmptied = WhenEmptied::nothing;
};

/// All of them. Whatever goes over the whole header goes over this list.
std::vector<HeaderField> headerFields(AwizoForm& form);

/// Empties a field, or gives it what it has in an empty header, such as today.
void emptyField(const HeaderField& field, Date today);

/// The text, "yyyy-mm-dd" or "hh:mm"; the empty text for no value.
std::string valueText(const HeaderField& field);

}  // namespace awizo
