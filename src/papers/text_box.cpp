#include "papers/text_box.h"

#include "platform/text.h"

namespace awizo::papers {
namespace {

/// The characters of the word that fit, one at least, and what is left.
std::string takeFitting(const TextMeasure& measure, std::string& word, const Font& font,
                        double width) {
  std::size_t fitting = 1;
  std::size_t tooMany = countCharacters(word);
  while (tooMany - fitting > 1) {
    const std::size_t middle = (fitting + tooMany) / 2;
    const std::string start(firstCharacters(word, middle));
    (measure.width(start, font) <= width ? fitting : tooMany) = middle;
  }
  std::string taken(firstCharacters(word, fitting));
  word.erase(0, taken.size());
  return taken;
}

}  // namespace

std::vector<std::string> wrapped(const TextMeasure& measure, std::string_view text,
                                 const Font& font, double width) {
  if (text.empty()) return {};
  if (measure.width(std::string(text), font) <= width) return {std::string(text)};
  std::vector<std::string> lines;
  std::string line;
  for (std::string& word : split(text, " ")) {
    if (word.empty()) continue;
    const std::string longer = line.empty() ? word : line + " " + word;
    if (measure.width(longer, font) <= width) {
      line = longer;
      continue;
    }
    if (!line.empty()) lines.push_back(line);
    while (countCharacters(word) > 1 && measure.width(word, font) > width) {
      lines.push_back(takeFitting(measure, word, font, width));
    }
    line = word;
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

std::vector<std::string> shortened(const TextMeasure& measure, std::vector<std::string> lines,
                                   std::size_t most, const Font& font, double width) {
  if (lines.size() <= most) return lines;
  lines.resize(most);
  std::string& last = lines.back();
  while (!last.empty() && measure.width(last + "…", font) > width) {
    last = firstCharacters(last, countCharacters(last) - 1);
  }
  last += "…";
  return lines;
}

}  // namespace awizo::papers
