#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace awizo {

/// An array as a host hands it over.
struct HostArray {
  std::int32_t lowerBound = 0;
  std::vector<std::string> elements;
  bool resizable = true;

  bool operator==(const HostArray&) const = default;
};

/// A value of any kind as a host hands it over: a single text, or an array.
using HostValue = std::variant<std::string, HostArray>;

/// Takes the element at `index` out of the array; those above it move down. Error 13 for a value
/// that is no array, error 9 for an index outside its bounds. An array that can't shrink raises its
/// own error number; its elements have moved by then. The last element can't be taken: an array
/// of no elements can't be dimensioned, which is error 9 too.
void ArrayRemoveItem(HostValue& array, std::int32_t index);

}  // namespace awizo
