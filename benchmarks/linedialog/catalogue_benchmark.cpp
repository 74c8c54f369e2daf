#include <benchmark/benchmark.h>

#include <cstdlib>

#include "benchmarks/support/full_size.h"
#include "benchmarks/support/timing.h"
#include "linedialog/dlg_dodaj.h"
#include "tests/support/test_editor.h"

namespace awizo::benchmarks {
namespace {

/// The dialog before its first touch, with a catalogue that the start-up has parsed.
struct Dialogs {
  test::TestEditor test;
  DlgIsoCodes isoCodes{test.screen, test.session};
  DlgdodajPule quantityDialog{test.screen, test.editor.conversions};
  DlgDodaj dialog{test.editor, isoCodes, quantityDialog};

  explicit Dialogs(const std::string& catalogue) {
    test.session.ProductCatalogLoaded = test.session.ProductCatalogDom->loadText(catalogue);
    dialog.allowLoading();
  }
};

/// The dialog's first touch: the lines read, four sorts, four lists filled; against bare parsing of
/// the same bytes.
void ReadingTheCatalogue(benchmark::State& state, LineOrder order, Repeats repeats, int lines) {
  const std::string text = catalogue(lines, order, repeats);
  double ours = 0;
  double bare = 0;
  for ([[maybe_unused]] const auto turn : state) {
    bare += processorSecondsOf([&] { parseBare(text); });
    Dialogs dialogs(text);
    const double seconds = processorSecondsOf([&] { dialogs.dialog.touch(); });
    if (dialogs.dialog.cboxNazwaProd.count() != lines) std::abort();
    ours += seconds;
    state.SetIterationTime(seconds);
  }
  state.counters["ratio"] = ours / bare;
}

#define CATALOGUE(name, order, repeats, lines)                                            \
  BENCHMARK_CAPTURE(ReadingTheCatalogue, name, LineOrder::order, Repeats::repeats, lines) \
      ->UseManualTime()                                                                   \
      ->Unit(benchmark::kMillisecond)
CATALOGUE(half, random, few, mostCatalogueLines / 2);
CATALOGUE(random, random, few, mostCatalogueLines);
CATALOGUE(sorted, sorted, few, mostCatalogueLines);
CATALOGUE(reversed, reversed, few, mostCatalogueLines);
CATALOGUE(no_buyer_codes, random, noBuyerCodes, mostCatalogueLines);
CATALOGUE(names_twice, random, namesTwice, mostCatalogueLines);

}  // namespace
}  // namespace awizo::benchmarks
