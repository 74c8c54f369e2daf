#include "hosts/headless/command_line.h"

#include <exception>
#include <string_view>

#include "hosts/common/program/about.h"
#include "hosts/headless/check_program.h"
#include "hosts/headless/headless_program.h"
#include "platform/text.h"

namespace awizo::headless {

namespace {

constexpr std::string_view usage =
    "usage: awizo-headless [--property NAME=VALUE]... [--page-url URL] [--cookie TEXT]\n"
    "                      [--settings FILE] [--offline-path DIR] [--locale NAME]\n"
    "                      [--now YYYY-MM-DDTHH:MM:SS] [--record FILE]\n"
    "                      [--replay FILE [--acts N]]\n"
    "       awizo-headless --check FILE [option]...\n"
    "       awizo-headless --help | --version\n";

/// A line is written with its end.
std::string_view withoutEnd(std::string_view text) { return text.substr(0, text.size() - 1); }

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments, Machine& machine, Lines& lines) {
  if (const std::string about = aboutProgram("awizo-headless", usage, arguments); !about.empty()) {
    lines.writeText(withoutEnd(about));
    return exitDone;
  }
  try {
    const Options options = parseOptions(arguments);
    if (options.checkedFile) return runCheck(options, machine, lines);
    return runHeadless(options, machine, lines);
  } catch (const BadArguments& error) {
    complain(joined({error.what(), "\n", withoutEnd(usage)}));
  } catch (const std::exception& error) {
    complain(error.what());
  }
  return exitBadArguments;
}

}  // namespace awizo::headless
