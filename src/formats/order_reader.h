#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "platform/run_time_error.h"
#include "platform/xml.h"
#include "session/record/editor.h"

namespace awizo {

/// The element whose children are the lines.
inline constexpr std::string_view orderLinesPath = "/Document-Order/Order-Lines";

/// Fills the form as Wczytaj_Zamowienie does, without showing anything. Returns the error that
/// ended the reading; nothing if it ran to its end.
std::optional<RunTimeError> readOrder(Editor& editor, std::unique_ptr<XmlDocument>& order);

/// Makes the form a new despatch advice that answers this order: completes the order from the
/// product catalogue, fills the header and makes a row for each order line. `order` isn't null; it
/// becomes null where completing it fails. The control takes no input meanwhile, and the wait
/// cursor shows. An error shows a box; what was read stays.
void Wczytaj_Zamowienie(Editor& editor, std::unique_ptr<XmlDocument>& order);

}  // namespace awizo
