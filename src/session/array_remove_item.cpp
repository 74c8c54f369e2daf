#include "session/array_remove_item.h"

#include <algorithm>
#include <cstddef>

#include "platform/run_time_error.h"

namespace awizo {
namespace {

constexpr std::int32_t subscriptError = 9;
constexpr std::int32_t typeError = 13;
constexpr std::int32_t fixedArrayError = 10;

void shrink(HostArray& array) {
  const char* refusal = "You must pass a resizable array to this function";
  if (!array.resizable) throw RunTimeError(fixedArrayError, refusal);
  if (array.elements.size() == 1) throw RunTimeError(subscriptError, refusal);
  array.elements.pop_back();
}

}  // namespace

void ArrayRemoveItem(HostValue& array, std::int32_t index) {
  auto* const held = std::get_if<HostArray>(&array);
  if (held == nullptr) throw RunTimeError(typeError, "Type Mismatch");
  const std::int64_t place = std::int64_t{index} - held->lowerBound;
  if (place < 0 || place >= static_cast<std::int64_t>(held->elements.size())) {
    throw RunTimeError(subscriptError, "Subscript out of Range");
  }
  const auto removed = held->elements.begin() + static_cast<std::ptrdiff_t>(place);
  std::copy(removed + 1, held->elements.end(), removed);
  shrink(*held);
}

}  // namespace awizo
