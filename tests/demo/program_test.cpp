#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "demo/running_service.h"

extern char** environ;

namespace awizo::demo {
namespace {

/// The service as a process of its own, with its output on a pipe.
class Program {
 public:
  explicit Program(std::vector<std::string> arguments) {
    std::string program = AWIZO_DEMO_SERVICE;
    std::vector<char*> pointers{program.data()};
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    posix_spawn(&process_, AWIZO_DEMO_SERVICE, &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    output_ = fdopen(ends[0], "r");
  }
  ~Program() { fclose(output_); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  std::string readLine() {
    std::array<char, 200> line{};
    return fgets(line.data(), line.size(), output_) == nullptr ? "" : line.data();
  }
  void send(int signal) const { kill(process_, signal); }
  /// Exit status, or -1 if a signal ended the program.
  int wait() const {
    int status = 0;
    waitpid(process_, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  pid_t process_ = 0;
  FILE* output_ = nullptr;
};

TEST(Program, SaysItsPortServesAndEndsCleanlyOnSigterm) {
  Program program({"--port", "0"});
  const std::string line = program.readLine();
  ASSERT_THAT(line, testing::MatchesRegex("port [0-9]+\n"));
  const std::string port = line.substr(5, line.size() - 6);
  EXPECT_EQ(program.readLine(), "http://127.0.0.1:" + port + "/vird/page/editor.html\n");
  httplib::Client client("127.0.0.1", std::stoi(port));
  const auto reply = client.Post(orderPath, orderRequest, "text/xml");
  ASSERT_TRUE(reply);
  EXPECT_THAT(reply->body, testing::HasSubstr("<Document-Order>"));
  program.send(SIGTERM);
  EXPECT_EQ(program.wait(), 0);
}

TEST(Program, EndsWithStatus2ForBadArguments) {
  Program program({"--port", "many"});
  EXPECT_EQ(program.wait(), 2);
}

TEST(Program, EndsWithStatus1WhenItCannotStart) {
  Program program({"--data", "/no/such/folder"});
  EXPECT_EQ(program.wait(), 1);
}

TEST(Program, ShowsItsOptions) {
  Program program({"--help"});
  EXPECT_EQ(program.readLine(), "usage: awizo-demo-service [OPTION VALUE]...\n");
  EXPECT_EQ(program.wait(), 0);
}

TEST(Program, TellsItsVersion) {
  Program program({"--version"});
  EXPECT_THAT(program.readLine(),
              testing::MatchesRegex("awizo-demo-service [0-9]+\\.[0-9]+\\.[0-9]+\n"));
  EXPECT_EQ(program.wait(), 0);
}

}  // namespace
}  // namespace awizo::demo
