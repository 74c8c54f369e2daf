#pragma once

#include "desk/current_line.h"
#include "hosts/desktop/layouts/long_text.h"
#include "session/record/editor.h"

namespace awizo::desktop {

/// The current line in words, below the table of lines. It belongs to its window, which goes before
/// the editor.
class LineStrip : public LongText {
 public:
  explicit LineStrip(const Editor& editor);
  ~LineStrip() override;

  /// Says this instead, until the current row changes; the line again where it is empty.
  void say(const QString& words);

 private:
  void follow(const Change& change);
  void showWords();

  const Editor& editor_;
  CurrentLine line_;
  int observation_ = 0;
  bool due_ = false;
};

}  // namespace awizo::desktop
