// The demo service as a program: serves until it is told to end (SIGTERM, or Ctrl+C).

#include <csignal>
#include <cstdio>
#include <exception>

#include "demo/demo_service.h"
#include "hosts/common/program/about.h"

namespace {

constexpr int exitBadArguments = 2;

/// Blocks the signals that end the program, for this thread and those it will start.
sigset_t blockEndSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  sigaddset(&signals, SIGINT);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  return signals;
}

void serve(const awizo::demo::Options& options) {
  const sigset_t endSignals = blockEndSignals();
  const awizo::demo::DemoService service(options);
  std::printf("port %d\n%s\n", service.port(), service.pageUrl().c_str());
  std::fflush(stdout);
  int signal = 0;
  sigwait(&endSignals, &signal);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  try {
    const auto options = awizo::demo::parseOptions({arguments + 1, arguments + argumentCount});
    if (options.about.empty()) {
      serve(options);
    } else {
      const std::string about =
          awizo::aboutProgram("awizo-demo-service", awizo::demo::optionsHelp(), {options.about});
      std::fputs(about.c_str(), stdout);
    }
    return 0;
  } catch (const awizo::demo::BadOption& error) {
    std::fprintf(stderr, "awizo-demo-service: %s\n", error.what());
    return exitBadArguments;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "awizo-demo-service: %s\n", error.what());
    return 1;
  }
}
