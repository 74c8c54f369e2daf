#include "benchmarks/process/child.h"

#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace awizo::benchmarks {
namespace {

[[noreturn]] void become(const std::vector<std::string>& command, int input) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(input, STDIN_FILENO);
  dup2(nothing, STDOUT_FILENO);
  execv(arguments[0], arguments.data());
  std::perror(arguments[0]);
  _exit(127);
}

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

Cost costOf(const std::vector<std::string>& command, const std::string& input) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) std::abort();
  // A child's highest memory begins with what this program holds when it forks.
  malloc_trim(0);
  const pid_t child = fork();
  if (child < 0) std::abort();
  if (child == 0) become(command, ends[0]);
  close(ends[0]);
  // Inputs are some lines, which a pipe takes at once.
  if (write(ends[1], input.data(), input.size()) != static_cast<ssize_t>(input.size()))
    std::abort();
  close(ends[1]);
  int status = 0;
  rusage used{};
  if (wait4(child, &status, 0, &used) != child) std::abort();
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    std::fprintf(stderr, "%s failed\n", command.front().c_str());
    std::exit(1);
  }
  return {seconds(used.ru_utime) + seconds(used.ru_stime),
          static_cast<double>(used.ru_maxrss) / 1024};
}

}  // namespace awizo::benchmarks
