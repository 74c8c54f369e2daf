#pragma once

#include <optional>
#include <string>

namespace awizo {

/// A line's reference to a package, as a document has it.
struct PackageReference {
  std::string packageId;
  std::optional<std::string> quantity;  ///< of the line in the package, with a point
  bool operator==(const PackageReference&) const = default;
};

}  // namespace awizo
