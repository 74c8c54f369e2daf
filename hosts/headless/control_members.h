#pragma once

#include <optional>
#include <string>

#include "hosts/headless/procedures/json.h"
#include "session/record/awizo_form.h"

namespace awizo::headless {

/// Members of the control by their names.
Json controlMembers(const AwizoForm& form);

}  // namespace awizo::headless
