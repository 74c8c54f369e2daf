#include <benchmark/benchmark.h>

#include <map>

#include "benchmarks/support/compare.h"
#include "benchmarks/support/full_document.h"
#include "benchmarks/support/full_size.h"
#include "formats/catalogue_completion.h"
#include "formats/despatch_advice_writer.h"
#include "formats/order_reader.h"
#include "tests/support/test_editor.h"

namespace awizo::benchmarks {
namespace {

/// A catalogue, parsed once for all turns as a start parses it: into fresh memory, where its nodes
/// lie one after another. Memory that another large document has left makes walks of it slower.
struct Catalogue {
  explicit Catalogue(int lineCount) : lines(lineCount), text(catalogue(lineCount)) {
    document->loadText(text);
  }

  int lines;
  std::string text;
  std::unique_ptr<XmlDocument> document = Libxml2().createDocument();
};

/// The catalogue of one part of the full size: 1, 2, 4 or 8.
const Catalogue& catalogueOfPart(int part) {
  static const std::map<int, Catalogue> all = [] {
    std::map<int, Catalogue> made;
    for (const int each : {1, 2, 4, 8}) made.try_emplace(each, mostCatalogueLines / each);
    return made;
  }();
  return all.at(part);
}

void CompletingAnOrder(benchmark::State& state) {
  const int part = static_cast<int>(state.range(0));
  const Catalogue& products = catalogueOfPart(part);
  test::TestEditor editor;
  std::unique_ptr<XmlDocument> waiting;
  compare(
      state, [&] { waiting = editor.document(order(mostOrderLines / part, products.lines)); },
      [&] { ProductCatalogToOrder(editor.editor, *products.document, *waiting); },
      [&] { parseBare(products.text); });
}
BENCHMARK(CompletingAnOrder)->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime();

void ReadingAnOrder(benchmark::State& state) {
  const int lines = mostOrderLines / static_cast<int>(state.range(0));
  test::TestEditor editor;
  for (const char* row : {"1", "2", "3"}) editor.form.cboxPackageDescription.addRow(row);
  const std::string text = order(lines, mostCatalogueLines);
  std::unique_ptr<XmlDocument> waiting;
  compare(
      state, [&] { waiting = editor.document(text); },
      [&] { Wczytaj_Zamowienie(editor.editor, waiting); }, [&] { parseBare(text); });
}
BENCHMARK(ReadingAnOrder)->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime();

void WritingADespatchAdvice(benchmark::State& state) {
  const int part = static_cast<int>(state.range(0));
  test::TestEditor editor;
  fillDocument(editor.editor, mostOrderLines / part, mostPackages / part);
  const std::string text = MakeDesAdv(editor.editor)->fileBytes();
  std::unique_ptr<XmlDocument> made;
  compare(
      state, [&] { made.reset(); }, [&] { made = MakeDesAdv(editor.editor); },
      [&] { parseAndSerialiseBare(text); });
}
BENCHMARK(WritingADespatchAdvice)->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime();

}  // namespace
}  // namespace awizo::benchmarks
