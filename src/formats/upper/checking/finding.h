#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace awizo {

/// One thing that will be refused, ignored or changed when a document is read.
struct Finding {
  std::int64_t line = 0;  ///< in the file, from 1; 0 if unknown
  std::string element;    ///< path below the document element; empty for the whole file
  std::string text;       ///< in Russian
};

/// A value in quotation marks, as a finding shows it: on one line, and only the start of a long
/// one.
std::string quoted(std::string_view value);

}  // namespace awizo
