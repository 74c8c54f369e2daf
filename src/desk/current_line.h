#pragma once

#include <string>
#include <string_view>

#include "session/record/editor.h"

namespace awizo {

/// What stands below the table of lines: the current line in words, or what was said in its place.
class CurrentLine {
 public:
  explicit CurrentLine(const Editor& editor) : editor_(editor) {}

  /// These words stand there until another line is the current one; the line again where they are
  /// empty.
  void say(std::string_view words);
  std::string words();

 private:
  const Editor& editor_;
  std::string said_;
  int saidAtRow_ = 0;
};

}  // namespace awizo
