#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/despatch_advice.h"

namespace awizo {

/// The part of a line that a package holds directly.
struct PackedPart {
  const AdviceLine* line;
  std::optional<std::string> quantity;  ///< as its reference has it
};

struct PackedPackage {
  const AdvicePackage* package;
  int level;  ///< 1 at the top; what is in it follows, one level deeper
  std::vector<PackedPart> lines;
};

/// Who is in which package.
struct Packing {
  /// Each package once, before those in it; those of one parent are in the document's order.
  std::vector<PackedPackage> packages;
  std::vector<PackedPart> unpacked;  ///< lines without package, and parts that name none of these
};

/// The packing of an advice, which must outlive it. A package whose parent isn't there is at the
/// top, and so is the first of those whose parents run in a circle. Of packages with one id the
/// first holds what is in it.
Packing packingOf(const DespatchAdvice& advice);

}  // namespace awizo
