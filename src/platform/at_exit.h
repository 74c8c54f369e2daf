#pragma once

#include <utility>

namespace awizo {

/// Undoes on leaving a block, by an error too, what the block began with.
template <class Undo>
class [[nodiscard]] AtExit {
 public:
  explicit AtExit(Undo undo) : undo_(std::move(undo)) {}
  ~AtExit() { undo_(); }
  AtExit(const AtExit&) = delete;
  AtExit& operator=(const AtExit&) = delete;

 private:
  Undo undo_;
};

}  // namespace awizo
