// The control without a screen: takes what a user does as lines of JSON from standard input.

#include <csignal>
#include <iostream>
#include <string>
#include <vector>

#include "adapters/curl/curl_http.h"
#include "adapters/posix/posix_files.h"
#include "hosts/headless/command_line.h"
#include "hosts/headless/native/native_machine.h"
#include "hosts/headless/native/stream_lines.h"

int main(int argumentCount, char** arguments) {
  // Who no longer reads what is said must not end the program half-way.
  std::signal(SIGPIPE, SIG_IGN);
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  awizo::CurlHttp http;
  awizo::PosixFiles files;
  awizo::headless::NativeMachine machine(http, files);
  awizo::headless::StreamLines lines(std::cin, std::cout);
  return awizo::headless::runCommandLine({arguments + 1, arguments + argumentCount}, machine,
                                         lines);
}
