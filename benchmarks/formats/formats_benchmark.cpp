#include <benchmark/benchmark.h>

#include <chrono>
#include <map>

#include "benchmarks/support/full_size.h"
#include "formats/catalogue_completion.h"
#include "formats/despatch_advice_writer.h"
#include "formats/order_reader.h"
#include "tables/columns.h"
#include "tests/support/test_editor.h"

namespace awizo::benchmarks {
namespace {

template <class Work>
double secondsOf(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs our work and the bare work by turns; tells the time of ours and its ratio to the bare.
/// `prepare` runs before each turn, untimed.
template <class Prepare, class Ours, class Bare>
void compare(benchmark::State& state, Prepare&& prepare, Ours&& ours, Bare&& bare) {
  double oursTotal = 0;
  double bareTotal = 0;
  for ([[maybe_unused]] const auto turn : state) {
    prepare();
    const double seconds = secondsOf(ours);
    oursTotal += seconds;
    state.SetIterationTime(seconds);
    // Last, since the allocator tidies up what a freed document leaves at a later call.
    bareTotal += secondsOf(bare);
  }
  state.counters["ratio"] = oursTotal / bareTotal;
}

std::unique_ptr<XmlDocument> order(const test::TestEditor& editor, int lines, int catalogueLines) {
  std::unique_ptr<XmlDocument> made = editor.document(orderReply(lines, catalogueLines));
  made->keepOnly(made->node().selectSingle("//Document-Order"));
  return made;
}

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
      state, [&] { waiting = order(editor, mostOrderLines / part, products.lines); },
      [&] { ProductCatalogToOrder(editor.editor, *products.document, *waiting); },
      [&] { parseBare(products.text); });
}
BENCHMARK(CompletingAnOrder)->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime();

void ReadingAnOrder(benchmark::State& state) {
  const int lines = mostOrderLines / static_cast<int>(state.range(0));
  test::TestEditor editor;
  for (const char* row : {"1", "2", "3"}) editor.form.cboxPackageDescription.addRow(row);
  const std::string text = orderReply(lines, mostCatalogueLines);
  std::unique_ptr<XmlDocument> waiting;
  compare(
      state, [&] { waiting = order(editor, lines, mostCatalogueLines); },
      [&] { Wczytaj_Zamowienie(editor.editor, waiting); }, [&] { parseBare(text); });
}
BENCHMARK(ReadingAnOrder)->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime();

std::vector<std::string> packageCells(int row) {
  std::vector<std::string> cells(15);
  cells[GRD_OPAK_PARENT_SERIAL] = std::to_string(row / 2 + 1);
  cells[GRD_OPAK_SERIAL] = std::to_string(row + 1);
  cells[GRD_OPAK_TYPE] = "201";
  cells[GRD_OPAK_SERIAL_NUMBER] = "354107380000001051";
  cells[GRD_OPAK_LOCATION_ILN] = "9520002000026";
  for (const int column : {GRD_OPAK_WEIGHT, GRD_OPAK_HEIGHT, GRD_OPAK_LENGTH, GRD_OPAK_WIDTH}) {
    cells[static_cast<std::size_t>(column)] = "1,250";
  }
  return cells;
}

std::vector<std::string> lineCells(int row) {
  std::vector<std::string> cells(23);
  const std::string number = std::to_string(row);
  cells[GRD_POZ_LP] = number;
  cells[GRD_POZ_EAN] = catalogueEAN(row);
  cells[GRD_POZ_NAME] = "Чай чёрный байховый листовой, пачка " + number;
  cells[GRD_POZ_QTY_ORDERED] = "10,000";
  cells[GRD_POZ_QTY_DESPATCHED] = "10,000";
  cells[GRD_POZ_PRICE] = "12,50";
  cells[GRD_POZ_CODE_BY_BUYER] = "B-" + number;
  cells[GRD_POZ_CODE_BY_SELLER] = "S-" + number;
  cells[GRD_POZ_UNIT] = "PCE";
  cells[GRD_POZ_ORDER_LINE] = number;
  cells[GRD_POZ_NET_AMOUNT] = "125,00";
  cells[GRD_POZ_TAX_RATE] = "18";
  cells[GRD_POZ_COUNTRY] = "RU";
  cells[GRD_POZ_CDN] = "12345678/010108/1234567";
  cells[GRD_POZ_PACK_REFS] = number + "@Коробка@1@5,000$" + number + "@Поддон@2@5,000";
  return cells;
}

void fillDocument(test::TestEditor& editor, int lines, int packages) {
  std::vector<std::vector<std::string>> rows;
  for (int row = 1; row <= lines; ++row) rows.push_back(lineCells(row));
  editor.fill(editor.form.grdPozycje, rows);
  editor.session.LineCount = static_cast<std::int16_t>(lines);
  rows.clear();
  for (int row = 1; row <= packages; ++row) rows.push_back(packageCells(row));
  editor.fill(editor.form.grdOpakowania, rows);
  editor.session.IloscPozycjiOpak = static_cast<std::int16_t>(packages);
}

void WritingADespatchAdvice(benchmark::State& state) {
  const int part = static_cast<int>(state.range(0));
  test::TestEditor editor;
  fillDocument(editor, mostOrderLines / part, mostPackages / part);
  const std::string text = MakeDesAdv(editor.editor)->fileBytes();
  std::unique_ptr<XmlDocument> made;
  compare(
      state, [&] { made.reset(); }, [&] { made = MakeDesAdv(editor.editor); },
      [&] { parseAndSerialiseBare(text); });
}
BENCHMARK(WritingADespatchAdvice)->Arg(8)->Arg(4)->Arg(2)->Arg(1)->UseManualTime();

}  // namespace
}  // namespace awizo::benchmarks
