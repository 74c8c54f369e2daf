#include <cstdlib>
#include <optional>

#include "benchmarks/support/compare.h"
#include "benchmarks/support/full_size.h"
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
  std::optional<Dialogs> dialogs;
  compare(
      state,
      [&] {
        dialogs.reset();
        dialogs.emplace(text);
      },
      [&] { dialogs->dialog.touch(); }, [&] { parseBare(text); });
  if (dialogs->dialog.cboxNazwaProd.count() != lines) std::abort();
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
