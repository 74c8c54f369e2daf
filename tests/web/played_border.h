#pragma once

#include <functional>
#include <vector>

#include "hosts/web/core/border.h"

namespace awizo::web::test {

/// What stands on the other side of the border while this lives: notes the questions, and answers
/// them.
class PlayedBorder {
 public:
  using Answer = std::function<Fields(const Fields& question)>;

  explicit PlayedBorder(Answer answer);
  ~PlayedBorder();
  PlayedBorder(const PlayedBorder&) = delete;
  PlayedBorder& operator=(const PlayedBorder&) = delete;

  std::vector<Fields> questions;
  const Answer answer;
  double localSeconds = 0;
};

}  // namespace awizo::web::test
