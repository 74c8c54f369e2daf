#include "platform/forms/table.h"

#include <algorithm>
#include <numeric>

#include "platform/run_time_error.h"

namespace awizo {
namespace {

std::size_t slot(int number) { return static_cast<std::size_t>(number); }

}  // namespace

Table::Table(Form& form, std::string name, int columns, int rows, int fixedRows)
    : Control(form, std::move(name), ControlKind::table),
      columns_(columns),
      fixedRows_(fixedRows),
      widths_(slot(columns), normalColumnWidth),
      columnAlignments_(slot(columns), Alignment::left),
      row_(fixedRows),
      rowSel_(fixedRows),
      topRow_(fixedRows),
      viewHeight_((fixedRows + normalRowsShown) * normalRowHeight) {
  while (this->rows() < rows) lines_.push_back(makeLine());
}

std::unique_ptr<Table::Line> Table::makeLine() const {
  auto made = std::make_unique<Line>();
  made->texts.resize(slot(columns_));
  made->looks.resize(slot(columns_));
  for (std::size_t column = 0; column < made->looks.size(); ++column) {
    made->looks[column].alignment = columnAlignments_[column];
  }
  return made;
}

void Table::setRows(int rows) {
  if (rows < 0) throw errors::invalidRow();
  if (rows <= fixedRows_) throw errors::tooManyFixedRows();
  if (rows == this->rows()) return;
  if (rows < this->rows()) lines_.resize(slot(rows));
  while (this->rows() < rows) lines_.push_back(makeLine());
  holdWithin();
  changed(Aspect::rows);
}

void Table::setFixedRows(int fixedRows) {
  if (fixedRows < 0) throw errors::invalidRow();
  if (fixedRows >= rows()) throw errors::tooManyFixedRows();
  if (fixedRows == fixedRows_) return;
  fixedRows_ = fixedRows;
  topRow_ = std::max(topRow_, fixedRows_);
  changed(Aspect::rows);
}

void Table::holdWithin() {
  const int last = rows() - 1;
  if (row_ > last || rowSel_ > last) {
    row_ = std::min(row_, last);
    rowSel_ = std::min(rowSel_, last);
    changed(Aspect::selection);
  }
  if (topRow_ > last) {
    topRow_ = last;
    changed(Aspect::scroll);
  }
}

void Table::addItem(std::string_view text) {
  lines_.push_back(makeLine());
  if (columns_ > 0) lines_.back()->texts.front() = text;
  changed(Aspect::rows);
}

void Table::requireRemovable(int row) const {
  requireRow(row);
  if (row < fixedRows_) throw errors::removeFixedRow();
}

void Table::removeItem(int row) {
  requireRemovable(row);
  if (rows() == fixedRows_ + 1) throw errors::removeLastRow();
  lines_.erase(lines_.begin() + row);
  holdWithin();
  changed(Aspect::rows);
}

void Table::removeItems(const std::vector<int>& rows) {
  for (const int row : rows) requireRemovable(row);
  if (rows.empty()) return;
  if (this->rows() <= fixedRows_ + static_cast<int>(rows.size())) throw errors::removeLastRow();
  for (const int row : rows) lines_[slot(row)].reset();
  std::erase(lines_, nullptr);
  holdWithin();
  changed(Aspect::rows);
}

void Table::clear() {
  for (const auto& line : lines_) {
    for (std::size_t column = 0; column < line->texts.size(); ++column) {
      line->texts[column].clear();
      line->looks[column] = CellLook{};
      line->looks[column].alignment = columnAlignments_[column];
    }
  }
  changed(Aspect::rows);
}

bool Table::hasCell(Corner corner) const {
  return corner.row >= 0 && corner.row < rows() && corner.column >= 0 && corner.column < columns_;
}

void Table::requireCell(int row, int column) const {
  if (!hasCell({row, column})) throw errors::cellOutOfRange();
}

void Table::requireRow(int row) const {
  if (row < 0 || row >= rows()) throw errors::invalidRow();
}

void Table::requireColumn(int column) const {
  if (column < 0 || column >= columns_) throw errors::invalidColumn();
}

Table::Corner Table::at(int index) const {
  if (index < 0 || columns_ == 0 || index / columns_ >= rows()) throw errors::cellOutOfRange();
  return {index / columns_, index % columns_};
}

const std::string& Table::cell(int index) const {
  const Corner corner = at(index);
  return line(corner.row).texts[slot(corner.column)];
}

void Table::setCell(int index, std::string_view text) { assign(at(index), text); }

const std::string& Table::cell(int row, int column) const {
  requireCell(row, column);
  return line(row).texts[slot(column)];
}

void Table::setCell(int row, int column, std::string_view text) {
  requireCell(row, column);
  assign({row, column}, text);
}

void Table::assign(Corner corner, std::string_view text) {
  std::string& held = line(corner.row).texts[slot(corner.column)];
  if (held == text) return;
  held = text;
  changed(Aspect::cell, corner.row, corner.column);
}

const CellLook& Table::look(int row, int column) const {
  requireCell(row, column);
  return line(row).looks[slot(column)];
}

CellLook& Table::lookOf(int row, int column) {
  requireCell(row, column);
  return line(row).looks[slot(column)];
}

void Table::setLook(int row, int column, const CellLook& look) {
  CellLook& held = lookOf(row, column);
  if (held == look) return;
  held = look;
  changed(Aspect::cell, row, column);
}

void Table::setBackground(int row, int column, Colour colour) {
  CellLook& held = lookOf(row, column);
  if (held.background == colour) return;
  held.background = colour;
  changed(Aspect::cell, row, column);
}

void Table::setAlignment(int row, int column, Alignment alignment) {
  CellLook& held = lookOf(row, column);
  if (held.alignment == alignment) return;
  held.alignment = alignment;
  changed(Aspect::cell, row, column);
}

void Table::setColumnAlignment(int column, Alignment alignment) {
  requireColumn(column);
  columnAlignments_[slot(column)] = alignment;
  for (const auto& line : lines_) line->looks[slot(column)].alignment = alignment;
  changed(Aspect::rows);
}

Alignment Table::columnAlignment(int column) const {
  requireColumn(column);
  return columnAlignments_[slot(column)];
}

int Table::rowHeight(int row) const {
  requireRow(row);
  return line(row).height;
}

void Table::setRowHeight(int row, int height) {
  requireRow(row);
  if (line(row).height == height) return;
  line(row).height = height;
  changed(Aspect::layout);
}

int Table::columnWidth(int column) const {
  requireColumn(column);
  return widths_[slot(column)];
}

void Table::setColumnWidth(int column, int width) {
  requireColumn(column);
  if (widths_[slot(column)] == width) return;
  widths_[slot(column)] = width;
  changed(Aspect::layout);
}

void Table::setRedraw(bool redraw) {
  if (redraw_ == redraw) return;
  redraw_ = redraw;
  changed(Aspect::redraw);
}

void Table::refresh() { changed(Aspect::redraw); }

}  // namespace awizo
