#include "assistants/distribution.h"

#include <algorithm>
#include <cmath>

namespace awizo {
namespace {

/// The largest quantity of the dialog. The difference is that of the floating numbers, as there.
Thousandths largest(Thousandths despatched, Thousandths packed) {
  constexpr auto decimals = static_cast<double>(wholeUnit);
  const double rest =
      static_cast<double>(despatched) / decimals - static_cast<double>(packed) / decimals;
  return static_cast<Thousandths>(std::nearbyint(rest)) * wholeUnit;
}

/// Makes the parts of a line, one after the other.
class Planner {
 public:
  explicit Planner(const LineRest& line) : line_(line), packed_(line.packed) {
    plan_.row = line.row;
  }

  Thousandths rest() const { return line_.despatched - packed_; }
  LinePlan finish() {
    plan_.left = rest();
    return std::move(plan_);
  }

  /// Puts as much of the quantity into the package as the dialog lets through.
  void put(std::size_t package, Thousandths quantity) {
    quantity = std::min(quantity, rest());
    if (add(package, quantity)) return;
    // What is a little more than the largest goes in by two parts, as 8.25 by 7.25 and 1.
    if (quantity >= 2 * wholeUnit && add(package, quantity - wholeUnit)) {
      add(package, wholeUnit);
    } else {
      add(package, std::min(quantity, largest(line_.despatched, packed_)) / wholeUnit * wholeUnit);
    }
  }

 private:
  bool add(std::size_t package, Thousandths quantity) {
    if (!isLetThrough(quantity, line_.despatched, packed_)) return false;
    packed_ += quantity;
    plan_.parts.push_back({package, quantity});
    return true;
  }

  const LineRest& line_;
  Thousandths packed_;
  LinePlan plan_;
};

/// Shares of so much for so many packages, or for fewer where each would have less than 1.
std::vector<Thousandths> evenShares(Thousandths rest, std::size_t packages, bool isCounted) {
  const Thousandths unit = isCounted ? wholeUnit : 1;
  const Thousandths count = std::clamp<Thousandths>(static_cast<Thousandths>(packages), 1,
                                                    std::max<Thousandths>(rest / wholeUnit, 1));
  const Thousandths units = rest / unit;
  std::vector<Thousandths> shares(static_cast<std::size_t>(count), units / count * unit);
  for (Thousandths i = 0; i < units % count; ++i) shares[static_cast<std::size_t>(i)] += unit;
  shares.front() += rest % unit;
  // Of a last share like 1.25 only 1 would go in; the one before can take the rest of it.
  Thousandths& last = shares.back();
  if (count > 1 && last > wholeUnit && last < 2 * wholeUnit && !isLetThrough(last, last, 0)) {
    shares[shares.size() - 2] += last - wholeUnit;
    last = wholeUnit;
  }
  return shares;
}

}  // namespace

bool isLetThrough(Thousandths quantity, Thousandths despatched, Thousandths packed) {
  constexpr Thousandths hundredth = 10;
  const Thousandths seen = (quantity + hundredth / 2) / hundredth * hundredth;
  return seen >= wholeUnit && seen <= largest(despatched, packed);
}

LinePlan planOf(const LineRest& line, std::size_t packages, Spread spread, Thousandths each) {
  Planner planner(line);
  if (planner.rest() <= 0 || packages == 0) return planner.finish();
  switch (spread) {
    case Spread::allHere:
      planner.put(0, planner.rest());
      break;
    case Spread::soMany:
      for (std::size_t i = 0; i + 1 < packages; ++i) planner.put(i, each);
      planner.put(packages - 1, planner.rest());
      break;
    case Spread::evenly: {
      std::size_t package = 0;
      for (const Thousandths share : evenShares(planner.rest(), packages, line.isCounted)) {
        planner.put(package++, share);
      }
      break;
    }
  }
  return planner.finish();
}

}  // namespace awizo
