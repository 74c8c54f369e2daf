#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace awizo::test {

/// A program that runs next to the test; its standard input and output are pipes. What it still
/// does at the end of this object is ended.
class ChildProcess {
 public:
  /// How long a test waits for a line or for the end before it gives the program up.
  static constexpr std::chrono::seconds patience{60};

  /// The program's file and its arguments; entries of the environment as "NAME=VALUE", put over
  /// those of the test.
  explicit ChildProcess(const std::vector<std::string>& command,
                        const std::vector<std::string>& environment = {});
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// False when the program doesn't read any more.
  bool write(std::string_view bytes);
  /// The next line of its output; none at the output's end or when patience ran out.
  std::optional<std::string> readLine();
  void closeInput();
  void closeOutput();
  /// Asks the program to end.
  void terminate();
  /// Ends it at once, by a signal that it can't catch.
  void kill();
  /// Waits for the end; the exit status, or minus the signal's number. None when patience ran out.
  std::optional<int> waitForEnd();

 private:
  bool fill();

  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string unread_;
  std::optional<int> status_;
};

}  // namespace awizo::test
