// The control without a screen: takes what a user does as lines of JSON from standard input.

#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/common/program/about.h"
#include "hosts/headless/check_program.h"
#include "hosts/headless/headless_program.h"

namespace {

constexpr std::string_view usage =
    "usage: awizo-headless [--property NAME=VALUE]... [--page-url URL] [--cookie TEXT]\n"
    "                      [--settings FILE] [--offline-path DIR] [--locale NAME]\n"
    "                      [--now YYYY-MM-DDTHH:MM:SS] [--record FILE]\n"
    "                      [--replay FILE [--acts N]]\n"
    "       awizo-headless --check FILE [option]...\n"
    "       awizo-headless --help | --version\n";

}  // namespace

int main(int argumentCount, char** arguments) {
  namespace headless = awizo::headless;
  // Who no longer reads what is said must not end the program half-way.
  std::signal(SIGPIPE, SIG_IGN);
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const std::vector<std::string> given(arguments + 1, arguments + argumentCount);
  if (const std::string about = awizo::aboutProgram("awizo-headless", usage, given);
      !about.empty()) {
    std::cout << about;
    return 0;
  }
  try {
    const awizo::Options options = awizo::parseOptions(given);
    if (options.checkedFile) return headless::runCheck(options, std::cout);
    return headless::runHeadless(options, std::cin, std::cout);
  } catch (const awizo::BadArguments& error) {
    std::cerr << "awizo-headless: " << error.what() << '\n' << usage;
  } catch (const std::exception& error) {
    std::cerr << "awizo-headless: " << error.what() << '\n';
  }
  return headless::exitBadArguments;
}
