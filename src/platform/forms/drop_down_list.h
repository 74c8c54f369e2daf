#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"

namespace awizo {

enum class ListStyle {
  freeTyping,     ///< any text may be typed or set
  listOnly,       ///< a row is picked, nothing is typed
  matchRequired,  ///< typed, but the field can't be left with a text that is no row
};

/// A drop-down list with a text of its own. The text's value decides about Change: it is raised
/// when the text really changes, by user or code, never for an equal text.
class DropDownList : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.style_, self.rows_, self.text_, self.index_));
  }

 public:
  DropDownList(Form& form, std::string name, std::string_view caption = "",
               ListStyle style = ListStyle::freeTyping)
      : Control(form, std::move(name), ControlKind::dropDownList),
        caption_(caption),
        style_(style) {}

  const std::string& caption() const { return caption_; }
  ListStyle style() const { return style_; }
  void setStyle(ListStyle style);

  const std::vector<std::string>& rows() const { return *rows_; }
  int count() const { return static_cast<int>(rows_->size()); }
  /// Raises nothing and selects nothing.
  void addRow(std::string_view text);
  /// Replaces all rows. Raises nothing; the text stays, and the index if its row has that text.
  void setRows(std::vector<std::string> rows);
  /// Removes all rows and empties the text.
  void clear();

  const std::string& text() const { return text_; }
  int index() const { return index_; }
  /// By code. The first row of exactly this text becomes the index, also where the text was the
  /// same before and the index was another; without one the index is -1 and the text stays, where
  /// the list allows typing; else error 380 (the empty text is never refused). Raises Change if the
  /// text differs.
  void setText(std::string_view text);
  /// By code. Out of range is error 380. An index of 0 or more takes the row's text, raises Change
  /// if the text differs, then Click. -1 empties the text unless the index was -1 already.
  void setIndex(int index);
  /// No row and no text, whatever the list held; raises Change if the text differs.
  void clearSelection();

  Event onChange;
  Event onClick;
  std::function<void(std::int16_t& code)> onKeyPress;

  /// The user puts the focus here and replaces the text by typing. Refused by a list-only list.
  void userType(std::string_view text);
  /// The user puts the focus here and picks a row: Change if the text differs, then Click. -1
  /// picks none: no row, no text, no Click. Refused: a row that isn't there.
  void userChoose(int row);

  /// False when a match is required and the text, unless it is empty, is no row.
  bool mayBeLeft() const override;

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  /// KeyPress for a key that stands for a character.
  void pressKey(std::int16_t code, bool shift) override;

  using Rows = std::vector<std::string>;

  const std::string& row(int number) const { return (*rows_)[static_cast<std::size_t>(number)]; }
  int find(std::string_view text) const;
  void become(int index, std::string_view text);

  std::string caption_;
  ListStyle style_;
  /// A long list is shared with what was kept of it, until it changes.
  std::shared_ptr<Rows> rows_ = std::make_shared<Rows>();
  std::string text_;
  int index_ = -1;
};

}  // namespace awizo
