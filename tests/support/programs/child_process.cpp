#include "support/programs/child_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <stdexcept>
#include <utility>

namespace awizo::test {

namespace {

using Pipe = std::array<int, 2>;

Pipe makePipe() {
  Pipe ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  return ends;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> environmentWith(const std::vector<std::string>& entries) {
  std::vector<std::string> all = entries;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string text = *entry;
    const std::string name = text.substr(0, text.find('=') + 1);
    bool replaced = false;
    for (const std::string& own : entries) replaced = replaced || own.starts_with(name);
    if (!replaced) all.push_back(text);
  }
  return all;
}

void closeEnd(int& end) {
  if (end >= 0) close(std::exchange(end, -1));
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command,
                           const std::vector<std::string>& environment) {
  signal(SIGPIPE, SIG_IGN);
  Pipe in = makePipe();
  Pipe out = makePipe();
  std::vector<std::string> arguments = command;
  std::vector<std::string> entries = environmentWith(environment);
  const std::vector<char*> argumentPointers = pointersTo(arguments);
  const std::vector<char*> entryPointers = pointersTo(entries);
  process_ = fork();
  if (process_ < 0) throw std::runtime_error("no process");
  if (process_ == 0) {
    signal(SIGPIPE, SIG_DFL);
    dup2(in[0], STDIN_FILENO);
    dup2(out[1], STDOUT_FILENO);
    execve(argumentPointers[0], argumentPointers.data(), entryPointers.data());
    _exit(127);
  }
  close(in[0]);
  close(out[1]);
  input_ = in[1];
  output_ = out[0];
}

ChildProcess::~ChildProcess() {
  closeInput();
  closeOutput();
  if (!status_) {
    ::kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
}

bool ChildProcess::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(input_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool ChildProcess::fill() {
  pollfd ready{output_, POLLIN, 0};
  const auto timeout = std::chrono::milliseconds(patience).count();
  if (poll(&ready, 1, static_cast<int>(timeout)) <= 0) return false;
  std::array<char, 65536> bytes{};
  const ssize_t count = read(output_, bytes.data(), bytes.size());
  if (count <= 0) return false;
  unread_.append(bytes.data(), static_cast<std::size_t>(count));
  return true;
}

std::optional<std::string> ChildProcess::readLine() {
  std::size_t searched = 0;
  std::size_t end = unread_.find('\n');
  while (end == std::string::npos) {
    searched = unread_.size();
    if (!fill()) return std::nullopt;
    end = unread_.find('\n', searched);
  }
  std::string line = unread_.substr(0, end);
  unread_.erase(0, end + 1);
  return line;
}

void ChildProcess::closeInput() { closeEnd(input_); }

void ChildProcess::closeOutput() { closeEnd(output_); }

void ChildProcess::terminate() { ::kill(process_, SIGTERM); }

void ChildProcess::kill() { ::kill(process_, SIGKILL); }

std::optional<int> ChildProcess::waitForEnd() {
  // The output ends with the program: reading it to its end is the wait.
  while (output_ >= 0 && fill()) {
  }
  if (!status_) {
    int status = 0;
    if (waitpid(process_, &status, 0) != process_) return std::nullopt;
    status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }
  return status_;
}

}  // namespace awizo::test
