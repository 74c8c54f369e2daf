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

std::shared_ptr<Table::Line> Table::makeLine() const {
  auto made = std::make_shared<Line>();
  made->texts.resize(slot(columns_));
  made->looks.resize(slot(columns_));
  for (std::size_t column = 0; column < made->looks.size(); ++column) {
    made->looks[column].alignment = columnAlignments_[column];
  }
  return made;
}

Table::Line& Table::ownLine(int row) {
  std::shared_ptr<Line>& line = lines_[slot(row)];
  if (line.use_count() > 1) line = std::make_shared<Line>(*line);
  return *line;
}

bool Table::holdsTextsOf(const Kept& kept) const {
  const auto& lines = std::get<decltype(lines_)>(valuesIn(kept, members(*this)));
  return std::ranges::equal(lines_, lines, [](const auto& now, const auto& then) {
    return now == then || now->texts == then->texts;
  });
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
  for (int row = 0; row < rows(); ++row) {
    Line& line = ownLine(row);
    for (std::size_t column = 0; column < line.texts.size(); ++column) {
      line.texts[column].clear();
      line.looks[column] = CellLook{};
      line.looks[column].alignment = columnAlignments_[column];
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
  if (line(corner.row).texts[slot(corner.column)] == text) return;
  ownLine(corner.row).texts[slot(corner.column)] = text;
  changed(Aspect::cell, corner.row, corner.column);
}

const CellLook& Table::look(int row, int column) const {
  requireCell(row, column);
  return line(row).looks[slot(column)];
}

void Table::assign(Corner corner, const CellLook& look) {
  if (line(corner.row).looks[slot(corner.column)] == look) return;
  ownLine(corner.row).looks[slot(corner.column)] = look;
  changed(Aspect::cell, corner.row, corner.column);
}

void Table::setLook(int row, int column, const CellLook& look) {
  requireCell(row, column);
  assign({row, column}, look);
}

void Table::setBackground(int row, int column, Colour colour) {
  CellLook changed = look(row, column);
  changed.background = colour;
  assign({row, column}, changed);
}

void Table::setAlignment(int row, int column, Alignment alignment) {
  CellLook changed = look(row, column);
  changed.alignment = alignment;
  assign({row, column}, changed);
}

void Table::setColumnAlignment(int column, Alignment alignment) {
  requireColumn(column);
  columnAlignments_[slot(column)] = alignment;
  for (int row = 0; row < rows(); ++row) ownLine(row).looks[slot(column)].alignment = alignment;
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
  ownLine(row).height = height;
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

KeptPart Table::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void Table::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
