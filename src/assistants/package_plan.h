#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "session/record/editor.h"

namespace awizo {

/// Packages that differ by the number in their description alone, and by their own numbers. The
/// texts are what the user would type.
struct PackagePlan {
  int type = 0;     ///< row of the package dialog's list
  int parent = -1;  ///< row of the package dialog's list; below 0: none
  int count = 1;
  /// Each '#' in it is the counter; without one the counter follows, where there are several.
  std::string description = {};
  std::string weight = {};                           ///< kilograms
  std::string length = {}, width = {}, height = {};  ///< metres
  std::string deliveryPlace = {};                    ///< its ILN
};

/// How many packages the document still takes.
int roomForPackages(const Editor& editor);

/// Why such packages can't be added, in Russian; empty where they can be tried.
std::string planRefusal(const PackagePlan& plan, const Editor& editor);

/// The descriptions of all packages of the plan. They are counted on from the highest number that a
/// package of the document has in the same words.
std::vector<std::string> descriptionsOf(const PackagePlan& plan, const Editor& editor);

}  // namespace awizo
