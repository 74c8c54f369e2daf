#pragma once

#include <memory>
#include <tuple>
#include <type_traits>

namespace awizo {

/// What something held at a moment, to be put back later. Nobody changes it, so that moments share
/// what is equal.
struct Kept {
  Kept() = default;
  virtual ~Kept() = default;
  Kept(const Kept&) = delete;
  Kept& operator=(const Kept&) = delete;
};

using KeptPart = std::shared_ptr<const Kept>;

template <class Values>
struct KeptValues : Kept {
  explicit KeptValues(Values kept) : values(std::move(kept)) {}
  const Values values;
};

/// The values of these members; `earlier`, of the same members, where they are still equal.
template <class... Members>
KeptPart keptOf(const KeptPart& earlier, const std::tuple<Members&...>& members) {
  using Values = std::tuple<std::remove_const_t<Members>...>;
  const auto* before = static_cast<const KeptValues<Values>*>(earlier.get());
  if (before != nullptr && before->values == members) return earlier;
  return std::make_shared<const KeptValues<Values>>(Values(members));
}

/// The values that keptOf() has kept of such members.
template <class... Members>
const std::tuple<std::remove_const_t<Members>...>& valuesIn(const Kept& kept,
                                                            const std::tuple<Members&...>&) {
  using Values = std::tuple<std::remove_const_t<Members>...>;
  return static_cast<const KeptValues<Values>&>(kept).values;
}

template <class... Members>
void putBackInto(std::tuple<Members&...> members, const Kept& kept) {
  members = valuesIn(kept, members);
}

}  // namespace awizo
