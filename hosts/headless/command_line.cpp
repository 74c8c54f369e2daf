#include "hosts/headless/command_line.h"

#include <exception>
#include <iostream>
#include <string_view>

#include "hosts/common/program/about.h"
#include "hosts/headless/check_program.h"
#include "hosts/headless/headless_program.h"

namespace awizo::headless {

namespace {

constexpr std::string_view usage =
    "usage: awizo-headless [--property NAME=VALUE]... [--page-url URL] [--cookie TEXT]\n"
    "                      [--settings FILE] [--offline-path DIR] [--locale NAME]\n"
    "                      [--now YYYY-MM-DDTHH:MM:SS] [--record FILE]\n"
    "                      [--replay FILE [--acts N]]\n"
    "       awizo-headless --check FILE [option]...\n"
    "       awizo-headless --help | --version\n";

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments, Machine& machine, std::istream& in,
                   std::ostream& out) {
  if (const std::string about = aboutProgram("awizo-headless", usage, arguments); !about.empty()) {
    out << about;
    out.flush();
    return exitDone;
  }
  try {
    const Options options = parseOptions(arguments);
    if (options.checkedFile) return runCheck(options, machine, out);
    return runHeadless(options, machine, in, out);
  } catch (const BadArguments& error) {
    std::cerr << "awizo-headless: " << error.what() << '\n' << usage;
  } catch (const std::exception& error) {
    std::cerr << "awizo-headless: " << error.what() << '\n';
  }
  return exitBadArguments;
}

}  // namespace awizo::headless
