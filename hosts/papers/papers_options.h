#pragma once

#include <optional>
#include <string>
#include <vector>

#include "papers/label_layout.h"

namespace awizo {

enum class PaperKind { labels, list, csv };

/// What awizo-papers was asked.
struct PapersOptions {
  PaperKind kind = PaperKind::labels;
  std::string file;
  std::string out;
  std::string packages;  ///< "2-5,9"; empty for all
  std::string folder;    ///< with the files that tell names; empty for none
  bool sheets = false;   ///< a sheet for each package in place of the list
  papers::LabelOptions labels;
};

/// Reads the arguments after the program's name; throws BadArguments.
PapersOptions parsePapersOptions(const std::vector<std::string>& arguments);

}  // namespace awizo
