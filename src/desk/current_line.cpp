#include "desk/current_line.h"

#include "desk/layout_words.h"
#include "desk/line_words.h"

namespace awizo {

void CurrentLine::say(std::string_view words) {
  said_ = words;
  saidAtRow_ = editor_.form.grdPozycje.row();
}

std::string CurrentLine::words() {
  const int row = editor_.form.grdPozycje.row();
  if (row != saidAtRow_) said_.clear();
  if (!said_.empty()) return said_;
  std::string line = lineWords(editor_, row);
  return line.empty() ? std::string(words::noLine) : line;
}

}  // namespace awizo
