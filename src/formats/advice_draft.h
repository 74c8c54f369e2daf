#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/despatch_advice.h"
#include "session/record/editor.h"

namespace awizo {

// What the user enters besides the values that a document carries.

struct PackageNotes {
  std::string description;
  std::string parentDescription;
  std::string level;
  bool operator==(const PackageNotes&) const = default;
};

struct LineNotes {
  std::string weight;  ///< of one unit
  std::string taxCategory;
  std::string expiryDate;
  std::string productionDate;
  std::string period;
  std::string periodFormat;
  std::string packages;  ///< the package reference string, with descriptions and levels
  std::string packedQuantity;
  bool operator==(const LineNotes&) const = default;
};

/// What the user has entered into a despatch advice: two that are equal hold the same entries.
/// Parties, currency and totals aren't entered.
struct AdviceDraft {
  std::vector<std::string> header;  ///< the texts of headerFields()
  std::vector<AdvicePackage> packages;
  std::vector<PackageNotes> packageNotes;  ///< one for each package
  std::vector<AdviceLine> lines;
  std::vector<LineNotes> lineNotes;      ///< one for each line
  std::vector<std::string> unreachable;  ///< cells of rows that are too many for a document
  std::optional<std::string> openEdit;   ///< what an open edit would change its cell to
  bool operator==(const AdviceDraft&) const = default;
};

/// Raises nothing: rows beyond the reach of the cell index are part of it too.
AdviceDraft draftOf(const Editor& editor);

}  // namespace awizo
