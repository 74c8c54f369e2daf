#pragma once

#include "desk/question.h"
#include "hosts/protocol/values/json.h"

namespace awizo::headless {

/// {"event":"question","text":"...","icon":"question","harmless":"later",
///  "choices":[{"choice":"goOn","words":"&Продолжить"}, ...]}
protocol::Json questionEvent(const Question& question);

/// What a line {"answer":"goOn"} chooses. Throws BadLine, or Refused where the question has no such
/// choice.
Choice choiceIn(const protocol::Json& line, const Question& question);

}  // namespace awizo::headless
