#include "hosts/protocol/table_state.h"

#include <cstdint>
#include <string>

namespace awizo::protocol {

namespace {

/// The looks of the cells, gathered row by row.
struct Looks {
  Json colours = Json::array();
  Json alignments = Json::array();
  Json bold = Json::array();
  Json wrap = Json::array();

  void take(int row, int column, const CellLook& look) {
    if (look.background != white) {
      colours.push_back(Json::array({row, column, colourText(look.background)}));
    }
    if (look.alignment != Alignment::left) {
      alignments.push_back(Json::array({row, column, alignmentName(look.alignment)}));
    }
    if (look.bold) bold.push_back(Json::array({row, column}));
    if (look.wrap) wrap.push_back(Json::array({row, column}));
  }
};

}  // namespace

std::string colourText(Colour colour) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text = "#";
  for (const std::uint8_t part : {colour.red, colour.green, colour.blue}) {
    text += digits[part / 16];
    text += digits[part % 16];
  }
  return text;
}

const char* alignmentName(Alignment alignment) {
  switch (alignment) {
    case Alignment::centre:
      return "centre";
    case Alignment::right:
      return "right";
    case Alignment::left:
      break;
  }
  return "left";
}

Json tableState(const Table& table) {
  Looks looks;
  Json cells = Json::array();
  Json heights = Json::array();
  Json widths = Json::array();
  for (int row = 0; row < table.rows(); ++row) {
    Json texts = Json::array();
    for (int column = 0; column < table.columns(); ++column) {
      texts.push_back(table.cell(row, column));
      looks.take(row, column, table.look(row, column));
    }
    cells.push_back(std::move(texts));
    heights.push_back(table.rowHeight(row));
  }
  for (int column = 0; column < table.columns(); ++column) {
    widths.push_back(table.columnWidth(column));
  }
  return {{"rows", table.rows()},
          {"cols", table.columns()},
          {"row", table.row()},
          {"col", table.column()},
          {"rowSel", table.rowSel()},
          {"colSel", table.columnSel()},
          {"cells", std::move(cells)},
          {"colours", std::move(looks.colours)},
          {"alignments", std::move(looks.alignments)},
          {"widths", std::move(widths)},
          {"heights", std::move(heights)},
          {"bold", std::move(looks.bold)},
          {"wrap", std::move(looks.wrap)},
          {"top", table.topRow()},
          {"redraw", table.redraw()}};
}

}  // namespace awizo::protocol
