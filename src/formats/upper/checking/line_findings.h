#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "formats/line_source.h"
#include "formats/upper/checking/document_map.h"
#include "session/record/editor.h"

namespace awizo {

/// Reports what differs between grdPozycje and the lines from which it was filled, and which of its
/// rows fail the line check.
class LineFindings {
 public:
  /// `sources`: from where the reader filled the columns.
  LineFindings(Editor& editor, const DocumentMap& map, const LineSources& sources)
      : editor_(editor), map_(map), sources_(sources) {}

  /// `line` is the element of which the reader made this row. Error 6 for a row that the table
  /// can't hold.
  void add(const XmlNode& line, std::int16_t row);
  const std::vector<Finding>& found() const { return found_; }

 private:
  void addFailure(const XmlNode& line, std::int16_t row, int column);
  /// `failing`: the column that is reported already, if there is one.
  void addNumbers(const XmlNode& line, std::int16_t row, std::optional<int> failing);
  XmlNode valueOf(const XmlNode& line, int column) const;

  Editor& editor_;
  const DocumentMap& map_;
  const LineSources& sources_;
  std::vector<Finding> found_;
};

}  // namespace awizo
