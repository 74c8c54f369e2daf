#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/forms/table.h"
#include "platform/forms/typed_search.h"

namespace awizo {

/// Where keys lead in a table that its user moves in as in a list: Home and End to the first and
/// the last row, characters to a row by the beginning of its text in one column. The user goes
/// there by Table::userRow.
class ListMoves {
 public:
  /// A text in capitals.
  using Upper = std::function<std::string(std::string_view)>;

  /// `column`: whose texts are searched.
  ListMoves(const Table& table, int column, Upper upper)
      : table_(table), column_(column), upper_(std::move(upper)) {}

  /// Any key that types no character; nothing where it leads nowhere.
  std::optional<int> rowOfKey(std::int16_t code);
  /// Nothing where no row begins so.
  std::optional<int> rowTyped(std::string_view character);

 private:
  const Table& table_;
  int column_;
  Upper upper_;
  TypedSearch typed_;
};

}  // namespace awizo
