#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/painting.h"

namespace awizo::papers {

struct Column {
  std::string heading;
  double width = 0;
  bool toTheRight = false;
};

/// Fills A4 sheets from top to bottom with paragraphs and tables. A row that has no room begins the
/// next sheet, which repeats the table's head; each sheet says which one it is.
class SheetFlow {
 public:
  /// `title` stands below every sheet.
  SheetFlow(const TextMeasure& measure, std::string title);

  void heading(const std::string& text);
  void paragraph(const std::string& text, const Font& font, double indent = 0);
  /// A caption with a text beside it.
  void facts(const std::vector<std::pair<std::string, std::string>>& facts);
  void space(double height) { y_ += height; }

  void beginTable(std::vector<Column> columns);
  void endTable();
  /// A shaded row over all columns, which stays with the row below it. A sheet that begins in the
  /// rows that follow repeats it.
  void group(const std::string& text, const std::string& more, double indent);
  void row(const std::vector<std::string>& cells);

  /// Begins a new sheet where less room is left.
  void keepTogether(double height);
  /// Lines to be filled in by hand, side by side.
  void signatures(const std::vector<std::string>& captions);

  Pages finish();

 private:
  struct Lines {
    std::vector<std::vector<std::string>> cells;
    std::size_t count = 0;  ///< of the tallest cell
  };

  double bottom() const;
  void newPage();
  void repeatHeads();
  Page& page() { return pages_.back(); }
  Lines linesOf(const std::vector<std::string>& cells, const Font& font) const;
  double heightOf(std::size_t lineCount) const;
  /// Puts lines `first` to `last` of the cells there, without looking for room.
  void put(const Lines& lines, std::size_t first, std::size_t last, const Font& font);
  void putTableHead();
  void putGroup(const std::string& text, const std::string& more);
  double groupHeight(const std::string& text, const std::string& more) const;
  void putText(double x, const std::string& text, const Font& font);

  const TextMeasure& measure_;
  std::string title_;
  Pages pages_;
  double y_ = 0;
  std::vector<Column> columns_;  ///< of the open table
  std::string group_;            ///< of the open table's rows
  double groupIndent_ = 0;
};

}  // namespace awizo::papers
