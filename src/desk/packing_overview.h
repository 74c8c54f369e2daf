#pragma once

#include <string>
#include <vector>

#include "session/record/editor.h"

namespace awizo {

/// A line beside what of it lies in packages.
struct PackingLine {
  int row = 0;  ///< of grdPozycje
  std::string number;
  std::string name;
  std::string packed;    ///< "4 из 8,25"
  bool isWhole = false;  ///< nothing of it is left to be packed
};

/// A package, or so much of a line in the package before it that is one level higher.
struct PackingPlace {
  int level = 1;       ///< 1 at the top; what is in a package follows it, one level deeper
  int package = 0;     ///< row of grdOpakowania; that of the package around it for a line
  int line = 0;        ///< row of grdPozycje; 0 for a package
  std::string serial;  ///< of the package
  std::string name;
  /// Of a package all that is in it and in those inside: "12 шт. · 4,5 кг"; what can't be added is
  /// counted after it: "12 шт. · не сложено: 1".
  std::string quantity;
};

/// Who lies where, as the tables hold it.
struct PackingOverview {
  std::vector<PackingLine> lines;
  std::vector<PackingPlace> places;
  std::string summary;  ///< "упаковано 12 из 25 строк", or why nothing can be said
};

/// In a time that grows with the document and no faster.
PackingOverview packingOverview(const Editor& editor);

}  // namespace awizo
