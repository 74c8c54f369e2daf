#include "hosts/papers/papers_options.h"

#include <charconv>

#include "hosts/common/options.h"

namespace awizo {
namespace {

int numberOf(const std::string& name, const std::string& text, int least, int most) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc{} || read.ptr != end || number < least || number > most) {
    throw BadArguments(name + ": a number from " + std::to_string(least) + " to " +
                       std::to_string(most) + ", not \"" + text + "\"");
  }
  return number;
}

papers::PageSize sizeOf(const std::string& text) {
  if (text == "a5") return papers::a5;
  if (text == "a6") return papers::a6;
  throw BadArguments("--size: a5 or a6, not \"" + text + "\"");
}

PaperKind kindOf(const std::string& text) {
  if (text == "labels") return PaperKind::labels;
  if (text == "list") return PaperKind::list;
  if (text == "csv") return PaperKind::csv;
  throw BadArguments("no such paper: " + text);
}

/// Options that only one paper has.
void mustBelong(PaperKind kind, PaperKind wanted, const std::string& name) {
  if (kind != wanted) {
    throw BadArguments(name + " goes with " + (wanted == PaperKind::list ? "list" : "labels"));
  }
}

void takeOption(PapersOptions& options, const std::string& name, const std::string& value) {
  constexpr int mostCopies = 20;
  constexpr int coarsest = 150;
  constexpr int finest = 2400;
  if (value.empty()) throw BadArguments("no value for: " + name);
  if (name == "-o" || name == "--output") {
    options.out = value;
  } else if (name == "--packages") {
    options.packages = value;
  } else if (name == "--folder") {
    options.folder = value;
  } else if (name == "--copies") {
    mustBelong(options.kind, PaperKind::labels, name);
    options.labels.copies = numberOf(name, value, 1, mostCopies);
  } else if (name == "--dpi") {
    mustBelong(options.kind, PaperKind::labels, name);
    options.labels.dotsPerInch = numberOf(name, value, coarsest, finest);
  } else if (name == "--size") {
    mustBelong(options.kind, PaperKind::labels, name);
    options.labels.size = sizeOf(value);
  } else {
    throw BadArguments("no such option: " + name);
  }
}

}  // namespace

PapersOptions parsePapersOptions(const std::vector<std::string>& arguments) {
  PapersOptions options;
  if (arguments.empty()) throw BadArguments("which paper: labels, list or csv?");
  options.kind = kindOf(arguments.front());
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (!argument.starts_with('-')) {
      if (!options.file.empty()) throw BadArguments("one file only: " + argument);
      options.file = argument;
      continue;
    }
    if (argument == "--sheets") {
      mustBelong(options.kind, PaperKind::list, argument);
      options.sheets = true;
      continue;
    }
    const std::size_t equals = argument.starts_with("--") ? argument.find('=') : argument.npos;
    if (equals != argument.npos) {
      takeOption(options, argument.substr(0, equals), argument.substr(equals + 1));
      continue;
    }
    if (i + 1 == arguments.size()) throw BadArguments("no value for: " + argument);
    takeOption(options, argument, arguments[++i]);
  }
  if (options.file.empty()) throw BadArguments("which file?");
  if (options.out.empty()) throw BadArguments("where to? -o OUT");
  const bool picks = options.kind == PaperKind::labels || options.sheets;
  if (!options.packages.empty() && !picks) {
    throw BadArguments("--packages goes with labels and with list --sheets");
  }
  return options;
}

}  // namespace awizo
