#pragma once

#include <QLabel>

#include "session/record/editor.h"

namespace awizo::desktop {

/// The current line in words, below the table of lines. It belongs to its window, which goes before
/// the editor.
class LineStrip : public QLabel {
 public:
  explicit LineStrip(const Editor& editor);
  ~LineStrip() override;

  /// Says this instead, until the current row changes; the line again where it is empty.
  void say(const QString& words);

 private:
  void follow(const Change& change);
  void showWords();

  const Editor& editor_;
  int observation_ = 0;
  int saidAtRow_ = -1;  ///< the current row when something else was said; -1 for nothing said
  bool due_ = false;
};

}  // namespace awizo::desktop
