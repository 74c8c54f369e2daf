#pragma once

#include <cstdint>
#include <string>

namespace awizo {

/// One thing that will be refused, ignored or changed when a document is read.
struct Finding {
  std::int64_t line = 0;  ///< in the file, from 1; 0 where it can't be told
  std::string element;    ///< path below the document element; empty for the whole file
  std::string text;       ///< in Russian
};

}  // namespace awizo
