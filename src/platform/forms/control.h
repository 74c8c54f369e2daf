#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/forms/acting.h"
#include "platform/forms/kept.h"
#include "platform/observers.h"

namespace awizo {

class Form;

/// What a user can't do now: the control is hidden or disabled, its form is covered by another or
/// isn't shown, a box is open, the list has no such row. Nothing has changed.
class Refused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class ControlKind {
  label,
  textField,
  button,
  pictureButton,
  dropDownList,
  datePicker,
  timePicker,
  spinButtons,
  table,
  driveList,
  folderList,
  fileList,
  frame,
};

/// A place on a form, in twips.
struct Place {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Place&) const = default;
};

/// What of a control has changed; the face of the control reads the new state from the model.
enum class Aspect {
  visible,
  enabled,
  place,
  focus,      ///< the control got or lost the focus
  content,    ///< text, caption, date, time, limits, path
  rows,       ///< rows of a list or table came, went or changed
  selection,  ///< index of a list; current cell or marked range of a table
  cell,       ///< one cell's text or look (row and column given)
  layout,     ///< widths and heights of a table
  scroll,     ///< first row shown of a table
  redraw,     ///< a table's redrawing went off or on
};

struct Change {
  Aspect aspect;
  int row = -1;
  int column = -1;
};

/// An event procedure; empty when nobody handles the event.
using Event = std::function<void()>;

/// What every visible part has. Events are raised with raise(): an error that leaves the event
/// procedure shows a critical box with its description under the title "VIRD" and ends the event.
class Control {
 protected:
  /// The members that every kind keeps.
  template <class Self>
  static auto common(Self& self) {
    return std::tie(self.visible_, self.enabled_, self.place_);
  }

 public:
  Control(Form& form, std::string name, ControlKind kind);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& name() const { return name_; }
  ControlKind kind() const { return kind_; }
  Form& form() const { return form_; }

  bool visible() const { return visible_; }
  void setVisible(bool visible);
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  /// The place that the logic has set, or none where the layout is the host's.
  const std::optional<Place>& place() const { return place_; }
  void move(const Place& place);

  bool hasFocus() const;
  /// Whether the kind can have the focus at all; labels, frames and pictures can't.
  bool isFocusable() const;
  /// A focus call by code: no validation; the left control's LostFocus, then GotFocus. Does
  /// nothing where the control can't take it (hidden, disabled, form not shown).
  void setFocus();

  Event onGotFocus;
  Event onLostFocus;
  Event onValidate;

  /// The user moves the focus here, by Tab or a click: Validate and LostFocus of the left control
  /// first, then GotFocus. Refused where the user can't act on the control.
  void userFocus();
  /// The user presses a key in the control; it takes the focus if it doesn't have it. Tab moves the
  /// focus on, Enter and Escape press the form's accepting and closing button; what is left is the
  /// control's own. `code` numbers keys as the platform does: see keys.h.
  void userKey(std::int16_t code, bool shift = false);
  /// Throws Refused, with a text for people, when the user can't act on the control now.
  void requireUser() const;

  /// A control that lies over this one in the same place. While it is visible, Tab passes this one
  /// over; it can still be set and get the focus by code.
  const Control* cover = nullptr;
  bool covered() const { return cover != nullptr && cover->visible(); }

  /// Notified after every change of the model.
  Observers<const Change&> observers;

  void raise(const Event& event);

  /// All that it holds now; `earlier`, kept of this control too, where nothing has changed since.
  /// How much of it a host shows isn't part of it.
  virtual KeptPart keep(const KeptPart& earlier) const;
  /// Puts that back. No event is raised and nobody is told before tellAll().
  virtual void putBack(const Kept& kept);
  /// Tells the observers that anything may have changed.
  void tellAll();

  /// Whether the user may move the focus elsewhere.
  virtual bool mayBeLeft() const { return true; }
  /// Whether the user can act on the control now.
  bool takesInput() const;

 protected:
  /// What a key does that the control may take.
  virtual void pressKey(std::int16_t code, bool shift) { takeUserKey(code, shift); }
  /// Begins what a user does to a control that takes the focus: refuses, or moves the focus here
  /// with all its events. Returns whether the action goes on: an event procedure may have hidden or
  /// disabled the control, opened a form or sent the focus elsewhere.
  bool takeUserFocus();
  /// Begins a key: takes the focus and does what the key means to the form. Returns whether the key
  /// is left for the control.
  bool takeUserKey(std::int16_t code, bool shift);

  /// For the outermost of the user's methods: once nothing refuses the act any more.
  Acting acting(ActKind kind, std::string_view text = {},
                const std::array<int, 4>& numbers = {}) const;

  void changed(Aspect aspect, int row = -1, int column = -1) {
    observers.tell({aspect, row, column});
  }

 private:
  friend class Form;

  bool canTakeFocus() const;
  [[noreturn]] void refuseFocus() const;

  Form& form_;
  std::string name_;
  ControlKind kind_;
  bool visible_ = true;
  bool enabled_ = true;
  std::optional<Place> place_;
};

}  // namespace awizo
