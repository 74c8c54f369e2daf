#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace awizo {

class Form;
class Control;

enum class ActKind : std::uint8_t {
  focus = 1,
  key,  ///< code, shift
  click,
  press,  ///< a click that moves no focus
  doubleClick,
  type,         ///< text
  chooseRow,    ///< row
  chooseDrive,  ///< text
  openFolder,   ///< text
  setDate,      ///< year, month, day; all 0 for none
  setTime,      ///< hour, minute, second; hour -1 for none
  clickCell,    ///< row, column
  selectCells,  ///< row, column, row and column of the other corner
  spin,         ///< by
  scroll,       ///< row
  closeForm,
};

/// What a user does to a control, or to a form by its frame, as plain values: enough to do it
/// again.
struct Act {
  ActKind kind{};
  std::string_view text;
  std::array<int, 4> numbers{};
  const Form* form = nullptr;
  const Control* control = nullptr;  ///< null where the form's frame is meant
};

/// Learns of every act of a user, in dialogs and while a box waits too, but not of acts that are
/// part of another: pressing Enter is one act, though it presses a button.
class ActObserver {
 public:
  virtual ~ActObserver() = default;
  /// Nothing is left that could refuse the act, but where refused() follows.
  virtual void begins(const Act& act) = 0;
  /// The act that began last was refused after all, which ends it; it has changed nothing.
  virtual void refused() = 0;
  /// The act is over, with all the boxes and dialogs that it opened; not wholly done where the end
  /// of the program broke it off.
  virtual void ends(bool whole) = 0;
  /// A host now shows that much of a table; see Table::setViewHeight.
  virtual void viewHeightSet(const Control& table, int height) = 0;
};

}  // namespace awizo
