#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "adapters/posix/descriptor.h"

namespace awizo {

/// A name that one running program of the user has. Others that want it can call that program. The
/// name is free with the program's end, whatever that is.
class PosixOneProgram {
 public:
  /// The folder is made for its owner alone. Where it can't be used, each program is the first.
  PosixOneProgram(const std::string& folder, std::string_view name);
  ~PosixOneProgram();
  PosixOneProgram(const PosixOneProgram&) = delete;
  PosixOneProgram& operator=(const PosixOneProgram&) = delete;

  /// The user's own: "awizo" below XDG_RUNTIME_DIR, or "awizo/programs" below his data.
  static std::string usersOwnFolder();

  bool isFirst() const { return isFirst_; }
  /// Answers whether the program that has the name could be called.
  bool callFirst() const;
  /// What can be read from when others call; -1 where nobody can.
  int calls() const { return socket_; }
  /// Takes the calls that have come.
  void takeCalls() const;

 private:
  std::string lockPath() const { return path_ + ".lock"; }
  void lock();
  void claim();

  std::string path_;
  std::unique_ptr<posix::Descriptor> lock_;
  bool isFirst_ = true;
  int socket_ = -1;
};

}  // namespace awizo
