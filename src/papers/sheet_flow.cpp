#include "papers/sheet_flow.h"

#include <algorithm>

#include "papers/text_box.h"

namespace awizo::papers {
namespace {

constexpr double sheetMargin = 12;
constexpr double sheetWidth = a4.width - 2 * sheetMargin;
constexpr double footHeight = 8;
constexpr double padding = 0.7;     ///< above and below the text of a cell
constexpr double cellMargin = 0.8;  ///< beside it
constexpr Font cellFont{2.9, false};
constexpr Font headFont{2.6, true};
constexpr Font groupFont{3.1, true};
constexpr Font moreFont{2.8, false};
constexpr double groupShade = 0.1;
constexpr double headShade = 0.2;
constexpr double rule = 0.15;

}  // namespace

SheetFlow::SheetFlow(const TextMeasure& measure, std::string title)
    : measure_(measure), title_(std::move(title)) {
  newPage();
}

double SheetFlow::bottom() const { return a4.height - sheetMargin - footHeight; }

void SheetFlow::newPage() {
  pages_.emplace_back().size = a4;
  y_ = sheetMargin;
}

void SheetFlow::repeatHeads() {
  if (columns_.empty()) return;
  putTableHead();
  if (!group_.empty()) putGroup(group_ + " (продолжение)", "");
}

void SheetFlow::keepTogether(double height) {
  if (y_ + height <= bottom()) return;
  newPage();
  repeatHeads();
}

void SheetFlow::putText(double x, const std::string& text, const Font& font) {
  page().texts.push_back({x, y_ + ascent(font), text, font});
}

void SheetFlow::heading(const std::string& text) {
  constexpr Font font{3.6, true};
  y_ += 3;
  keepTogether(20);
  paragraph(text, font);
  y_ += 1;
}

void SheetFlow::paragraph(const std::string& text, const Font& font, double indent) {
  for (const std::string& line : wrapped(measure_, text, font, sheetWidth - indent)) {
    keepTogether(lineHeight(font));
    putText(sheetMargin + indent, line, font);
    y_ += lineHeight(font);
  }
}

void SheetFlow::facts(const std::vector<std::pair<std::string, std::string>>& facts) {
  constexpr Font font{3.2, false};
  constexpr Font caption{3.2, true};
  double column = 0;
  for (const auto& [words, text] : facts) column = std::max(column, measure_.width(words, caption));
  column += 3;
  for (const auto& [words, text] : facts) {
    keepTogether(lineHeight(font));
    putText(sheetMargin, words, caption);
    paragraph(text, font, column);
  }
}

void SheetFlow::beginTable(std::vector<Column> columns) {
  columns_ = std::move(columns);
  group_.clear();
  constexpr double headAndRow = 15;
  if (y_ + headAndRow > bottom()) newPage();
  putTableHead();
}

void SheetFlow::endTable() {
  columns_.clear();
  group_.clear();
}

SheetFlow::Lines SheetFlow::linesOf(const std::vector<std::string>& cells, const Font& font) const {
  Lines lines;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const double width = columns_[i].width - 2 * cellMargin;
    lines.cells.push_back(wrapped(measure_, cells[i], font, width));
    lines.count = std::max(lines.count, lines.cells.back().size());
  }
  return lines;
}

double SheetFlow::heightOf(std::size_t lineCount) const {
  return static_cast<double>(lineCount) * lineHeight(cellFont) + 2 * padding;
}

void SheetFlow::put(const Lines& lines, std::size_t first, std::size_t last, const Font& font) {
  double x = sheetMargin;
  for (std::size_t i = 0; i < lines.cells.size(); ++i) {
    const std::vector<std::string>& cell = lines.cells[i];
    for (std::size_t line = first; line < std::min(last, cell.size()); ++line) {
      const double width = columns_[i].width - 2 * cellMargin;
      const double shift = columns_[i].toTheRight ? width - measure_.width(cell[line], font) : 0;
      const double top = y_ + padding + static_cast<double>(line - first) * lineHeight(font);
      page().texts.push_back({x + cellMargin + shift, top + ascent(font), cell[line], font});
    }
    x += columns_[i].width;
  }
  y_ += static_cast<double>(last - first) * lineHeight(font) + 2 * padding;
  page().rectangles.push_back({sheetMargin, y_ - rule, sheetWidth, rule, 0.5});
}

void SheetFlow::putTableHead() {
  std::vector<std::string> headings;
  for (const Column& column : columns_) headings.push_back(column.heading);
  const Lines lines = linesOf(headings, headFont);
  const double height = static_cast<double>(lines.count) * lineHeight(headFont) + 2 * padding;
  page().rectangles.push_back({sheetMargin, y_, sheetWidth, height, headShade});
  put(lines, 0, lines.count, headFont);
}

void SheetFlow::row(const std::vector<std::string>& cells) {
  // A name of a whole sheet's length is the only one that goes on in another row.
  constexpr std::size_t mostLines = 40;
  const Lines lines = linesOf(cells, cellFont);
  for (std::size_t first = 0; first < std::max<std::size_t>(lines.count, 1); first += mostLines) {
    const std::size_t last = std::min(first + mostLines, std::max<std::size_t>(lines.count, 1));
    keepTogether(heightOf(last - first));
    put(lines, first, last, cellFont);
  }
}

double SheetFlow::groupHeight(const std::string& text, const std::string& more) const {
  const double width = sheetWidth - groupIndent_ - 2 * cellMargin;
  return static_cast<double>(wrapped(measure_, text, groupFont, width).size()) *
             lineHeight(groupFont) +
         static_cast<double>(wrapped(measure_, more, moreFont, width).size()) *
             lineHeight(moreFont) +
         2 * padding;
}

void SheetFlow::putGroup(const std::string& text, const std::string& more) {
  const double height = groupHeight(text, more);
  page().rectangles.push_back(
      {sheetMargin + groupIndent_, y_, sheetWidth - groupIndent_, height, groupShade});
  const double end = y_ + height;
  y_ += padding;
  const double width = sheetWidth - groupIndent_ - 2 * cellMargin;
  for (const auto& [words, font] : {std::pair{&text, groupFont}, std::pair{&more, moreFont}}) {
    for (const std::string& line : wrapped(measure_, *words, font, width)) {
      putText(sheetMargin + groupIndent_ + cellMargin, line, font);
      y_ += lineHeight(font);
    }
  }
  y_ = end;
  page().rectangles.push_back({sheetMargin, y_ - rule, sheetWidth, rule, 0.5});
}

void SheetFlow::group(const std::string& text, const std::string& more, double indent) {
  groupIndent_ = indent;
  group_.clear();
  // Some rows have two or three lines.
  keepTogether(groupHeight(text, more) + heightOf(3));
  putGroup(text, more);
  group_ = text;
}

void SheetFlow::signatures(const std::vector<std::string>& captions) {
  constexpr Font font{3.2, false};
  keepTogether(16);
  y_ += 9;
  const double width = sheetWidth / static_cast<double>(captions.size());
  double x = sheetMargin;
  for (const std::string& caption : captions) {
    putText(x, caption, font);
    const double begin = measure_.width(caption, font) + 2;
    page().rectangles.push_back({x + begin, y_ + ascent(font), width - begin - 4, 0.2});
    x += width;
  }
  y_ += lineHeight(font);
}

Pages SheetFlow::finish() {
  constexpr Font font{2.7, false};
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    const std::string number =
        "лист " + std::to_string(i + 1) + " из " + std::to_string(pages_.size());
    const double baseline = a4.height - sheetMargin;
    const double numberAt = a4.width - sheetMargin - measure_.width(number, font);
    pages_[i].rectangles.push_back({sheetMargin, baseline - 4, sheetWidth, rule, 0.5});
    const std::vector<std::string> title =
        shortened(measure_, wrapped(measure_, title_, font, numberAt - sheetMargin - 5), 1, font,
                  numberAt - sheetMargin - 5);
    if (!title.empty()) pages_[i].texts.push_back({sheetMargin, baseline, title.front(), font});
    pages_[i].texts.push_back({numberAt, baseline, number, font});
  }
  return std::move(pages_);
}

}  // namespace awizo::papers
