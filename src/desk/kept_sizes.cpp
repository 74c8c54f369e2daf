#include "desk/kept_sizes.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>

#include "desk/desk_settings.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view sizesSection = "Sizes";
constexpr int largestSize = 20000;

std::optional<int> sizeIn(const std::string& text) {
  int size = -1;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, size);
  const bool whole = read.ec == std::errc{} && read.ptr == end;
  if (!whole || size < 0) return std::nullopt;
  // One that is too large leaves the others of its part as they are.
  return std::min(size, largestSize);
}

std::string textOf(const std::vector<int>& sizes) {
  std::vector<std::string> texts;
  std::ranges::transform(sizes, std::back_inserter(texts),
                         [](int size) { return std::to_string(size); });
  return join(texts, " ");
}

}  // namespace

std::vector<int> KeptSizes::of(std::string_view part) const {
  std::vector<int> sizes;
  for (const std::string& text : split(settings_.read(deskSettings, sizesSection, part, ""), " ")) {
    const std::optional<int> size = sizeIn(text);
    if (!size) return {};
    sizes.push_back(*size);
  }
  const bool anySize = std::ranges::any_of(sizes, [](int size) { return size > 0; });
  return anySize ? sizes : std::vector<int>();
}

std::vector<int> KeptSizes::of(std::string_view part, std::size_t count) const {
  std::vector<int> sizes = of(part);
  return sizes.size() == count ? sizes : std::vector<int>();
}

void KeptSizes::keep(std::string_view part, const std::vector<int>& sizes) {
  const std::string text = textOf(sizes);
  if (settings_.read(deskSettings, sizesSection, part, "") == text) return;
  try {
    settings_.write(deskSettings, sizesSection, part, text);
  } catch (const RunTimeError&) {
    // The window is as it is; the next one has the sizes of the one before.
  }
}

}  // namespace awizo
