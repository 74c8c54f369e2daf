// usage: write_full_size FOLDER
// Writes a catalogue and an order at the system's limits, under the names of the demo service's
// data.

#include <filesystem>
#include <fstream>

#include "benchmarks/support/full_size.h"

int main(int count, char** arguments) {
  using namespace awizo::benchmarks;  // NOLINT(google-build-using-namespace)
  if (count != 2) return 2;
  const std::filesystem::path folder = arguments[1];
  std::ofstream(folder / "catalogue.xml") << catalogue(mostCatalogueLines);
  std::ofstream(folder / "order.xml") << order(mostOrderLines, mostCatalogueLines);
}
