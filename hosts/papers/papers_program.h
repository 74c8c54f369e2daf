#pragma once

#include <iosfwd>

#include "hosts/papers/papers_options.h"

namespace awizo {

// Exit statuses.
inline constexpr int exitPaperMade = 0;
inline constexpr int exitLabelsLeftOut = 1;
inline constexpr int exitNoPaper = 2;

/// Makes the paper; packages that get no label are told to `notes`. Returns the exit status. Throws
/// std::runtime_error, in Russian, where no paper can be made. Qt must have been started.
int makePaper(const PapersOptions& options, std::ostream& notes);

}  // namespace awizo
