// Labels and packing lists of a saved or sent despatch advice, as PDF or CSV.

#include <QGuiApplication>
#include <exception>
#include <iostream>

#include "hosts/common/options.h"
#include "hosts/common/program/about.h"
#include "hosts/papers/papers_program.h"

namespace {

constexpr std::string_view usage =
    "usage: awizo-papers labels FILE -o OUT [--packages 2-5,9] [--copies N] [--size a5|a6]\n"
    "                    [--dpi N] [--folder DIR]\n"
    "       awizo-papers list FILE -o OUT [--sheets [--packages 2-5,9]] [--folder DIR]\n"
    "       awizo-papers csv FILE -o OUT\n"
    "       awizo-papers --help | --version\n";

}  // namespace

int main(int argumentCount, char** arguments) {
  const std::vector<std::string> given(arguments + 1, arguments + argumentCount);
  if (const std::string about = awizo::aboutProgram("awizo-papers", usage, given); !about.empty()) {
    std::cout << about;
    return 0;
  }
  try {
    const awizo::PapersOptions options = awizo::parsePapersOptions(given);
    // Fonts are all that is wanted of Qt, and they need no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false");
    int one = 1;
    const QGuiApplication application(one, arguments);
    return awizo::makePaper(options, std::cerr);
  } catch (const awizo::BadArguments& error) {
    std::cerr << "awizo-papers: " << error.what() << '\n' << usage;
  } catch (const std::exception& error) {
    std::cerr << "awizo-papers: " << error.what() << '\n';
  }
  return awizo::exitNoPaper;
}
