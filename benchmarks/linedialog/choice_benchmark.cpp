#include <cstdlib>

#include "benchmarks/support/compare.h"
#include "benchmarks/support/full_document.h"
#include "tests/support/control/desk.h"

namespace awizo::benchmarks {
namespace {

/// A user before a document of 100 lines, and a dialog that has read this many lines of a
/// catalogue.
struct Choice : test::Desk {
  explicit Choice(int catalogueLines) {
    session.ProductCatalogLoaded = session.ProductCatalogDom->loadText(catalogue(catalogueLines));
    fillDocument(editor, 100, 0);
    for (int row = 1; row <= 100; ++row) {
      lines.setCell(row, GRD_POZ_PRODUCTION_DATE, "2026-11-21");
      lines.setCell(row, GRD_POZ_PACKED_QTY, "10,000");
    }
    lines.setRow(1);
    lineDialog.touch();
    if (lineDialog.cboxEANProd.count() != catalogueLines) std::abort();
  }
};

template <class Work>
void measure(benchmark::State& state, Work&& work) {
  for ([[maybe_unused]] const auto turn : state) state.SetIterationTime(secondsOf(work));
  state.SetComplexityN(state.range(0));
}

/// The user picks one product after the other in one of the linked lists.
void PickingAProduct(benchmark::State& state, DropDownList DlgDodaj::*list) {
  Choice choice(static_cast<int>(state.range(0)));
  DropDownList& picked = choice.lineDialog.*list;
  int row = 0;
  choice.face.onModal([&] {
    measure(state, [&] {
      row = (row + 7919) % picked.count();
      picked.userChoose(row);
    });
    if (choice.lineDialog.txtKodSprzed.text().empty()) std::abort();
    choice.lineDialog.btnZamknij.userClick();
  });
  choice.lineDialog.showModal();
}
#define PICKING(list)                                       \
  BENCHMARK_CAPTURE(PickingAProduct, list, &DlgDodaj::list) \
      ->Arg(mostCatalogueLines / 8)                         \
      ->Arg(mostCatalogueLines / 4)                         \
      ->Arg(mostCatalogueLines / 2)                         \
      ->Arg(mostCatalogueLines)                             \
      ->UseManualTime()                                     \
      ->Unit(benchmark::kMicrosecond)
PICKING(cboxEANProd);
PICKING(cboxNazwaProd);
PICKING(cboxKodAPP);
PICKING(cboxKodSprzed);

/// From the click on the button to the filled dialog, which the user closes at once.
void OpeningForAnEdit(benchmark::State& state) {
  Choice choice(static_cast<int>(state.range(0)));
  measure(state, [&] {
    choice.closeNextForm();
    choice.form.btnEdytuj.userClick();
  });
  if (choice.lineDialog.txtIloscPotw.text() != "10,000") std::abort();
}
BENCHMARK(OpeningForAnEdit)
    ->Arg(mostCatalogueLines / 8)
    ->Arg(mostCatalogueLines / 4)
    ->Arg(mostCatalogueLines / 2)
    ->Arg(mostCatalogueLines)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace awizo::benchmarks
