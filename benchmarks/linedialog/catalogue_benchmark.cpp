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
void ReadingTheCatalogue(benchmark::State& state, LineOrder order, Repeats repeats) {
  const int lines = mostCatalogueLines / static_cast<int>(state.range(0));
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

// clang-format off
#define CATALOGUE(name, order, repeats)                                            \
  BENCHMARK_CAPTURE(ReadingTheCatalogue, name, LineOrder::order, Repeats::repeats) \
      ->UseManualTime()->Unit(benchmark::kMillisecond)
// clang-format on
CATALOGUE(random, random, few)->Arg(8)->Arg(4)->Arg(2)->Arg(1);
CATALOGUE(sorted, sorted, few)->Arg(8)->Arg(4)->Arg(2)->Arg(1);
CATALOGUE(reversed, reversed, few)->Arg(8)->Arg(4)->Arg(2)->Arg(1);
CATALOGUE(noBuyerCodes, random, noBuyerCodes)->Arg(8)->Arg(4)->Arg(2)->Arg(1);
CATALOGUE(namesTwice, random, namesTwice)->Arg(8)->Arg(4)->Arg(2)->Arg(1);

}  // namespace
}  // namespace awizo::benchmarks
