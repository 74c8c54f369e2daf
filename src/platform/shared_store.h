#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace awizo {

/// Texts under names that several programs, and several users, read and change. Failures raise the
/// run-time errors of Files.
class SharedStore {
 public:
  virtual ~SharedStore() = default;

  /// Runs the work while no other program's work runs here; waits for that. The program's end ends
  /// its turn.
  virtual void alone(const std::function<void()>& work) = 0;

  /// The text from this byte on; empty where there is none.
  virtual std::string read(std::string_view name, std::uint64_t from = 0) = 0;
  /// The whole new text is on the disk when this returns; a failure or the program's end leaves the
  /// old one.
  virtual void replace(std::string_view name, std::string_view text) = 0;
  /// Adds to the end; it is on the disk when this returns. The program's end may leave a part of
  /// it.
  virtual void append(std::string_view name, std::string_view text) = 0;
};

}  // namespace awizo
