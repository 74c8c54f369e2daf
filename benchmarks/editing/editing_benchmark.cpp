#include <cstdlib>

#include "benchmarks/support/compare.h"
#include "benchmarks/support/full_document.h"
#include "tests/support/control/desk.h"

namespace awizo::benchmarks {
namespace {

/// Times one thing that a user does; `prepare` runs before each turn, untimed.
template <class Prepare, class Work>
void measure(benchmark::State& state, Prepare&& prepare, Work&& work) {
  for ([[maybe_unused]] const auto turn : state) {
    prepare();
    state.SetIterationTime(secondsOf(work));
  }
  state.SetComplexityN(state.range(0));
}

/// This many thousandths of the largest document.
int partOf(const benchmark::State& state, int most) {
  return most * static_cast<int>(state.range(0)) / 1000;
}

/// A document with every second package in a tree of its own, whose top is in row 2.
void fillWithSubtree(test::Desk& desk, int lines, int packages, int inSubtree) {
  fillDocument(desk.editor, lines, packages);
  for (int row = 1; row <= packages; ++row) {
    const int place = row / 2;
    const bool inTree = row % 2 == 0 && place <= inSubtree;
    const int parentRow = inTree && place > 1 ? place / 2 * 2 : 0;
    desk.packages.setCell(row, GRD_OPAK_PARENT_SERIAL, std::to_string(parentRow + 1));
  }
  desk.packages.setRow(2);
}

void RemovingASubtree(benchmark::State& state) {
  test::Desk desk;
  const int packages = partOf(state, mostPackages);
  const int inSubtree = partOf(state, 1000);
  measure(
      state, [&] { fillWithSubtree(desk, partOf(state, mostOrderLines), packages, inSubtree); },
      [&] { desk.form.btnUsunOpak.userClick(); });
  if (desk.session.IloscPozycjiOpak != packages - inSubtree) std::abort();
}
BENCHMARK(RemovingASubtree)->Arg(125)->Arg(250)->Arg(500)->Arg(1000)->UseManualTime();

/// From the click on the button to the written row, at 2,000 packages and fewer.
void AddingAPackage(benchmark::State& state) {
  test::Desk desk;
  measure(
      state,
      [&] {
        fillDocument(desk.editor, partOf(state, mostOrderLines), partOf(state, 2000));
        for (int row = 1; row <= partOf(state, 2000); ++row) {
          desk.packages.setCell(row, GRD_OPAK_LEVEL, "1");
          desk.packages.setCell(row, GRD_OPAK_DESC, "Коробка " + std::to_string(row));
        }
      },
      [&] { desk.addPackage({.description = "Новая", .parent = 0}); });
  if (desk.session.IloscPozycjiOpak != partOf(state, 2000) + 1) std::abort();
}
BENCHMARK(AddingAPackage)->Arg(125)->Arg(250)->Arg(500)->Arg(1000)->UseManualTime();

}  // namespace
}  // namespace awizo::benchmarks
