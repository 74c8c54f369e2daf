#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/programs/workplace.h"

namespace awizo::test {

/// awizo-headless, in this process, with a despatch advice at the limits: 1,423 lines and 2,183
/// packages. The file dialog is open and names the target: one click more saves.
class PreparedEditor {
 public:
  static constexpr int lineCount = 1423;
  static constexpr int packageCount = 2183;

  explicit PreparedEditor(const Workplace& place) : place_(place) {}

  std::filesystem::path target() const { return place_.documents() / "document.xml"; }

  /// Runs the editor up to there and calls `then`, whose process has the prepared editor in it. In
  /// a fork that returns from `then`, the editor goes on: it serves the click and ends.
  void run(const std::function<void()>& then) const;

 private:
  std::vector<std::string> preparingLines() const;

  const Workplace& place_;
};

}  // namespace awizo::test
