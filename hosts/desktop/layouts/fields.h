#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "hosts/desktop/layouts/form_dialog.h"

namespace awizo::desktop {

/// A grid of fields with their captions before them, aligned in columns.
class Fields {
 public:
  Fields(FormFace& faces, QWidget* parent);

  QGridLayout* grid() const { return grid_; }

  /// A caption that is a control of the form, and the field next to it, in a pair of columns: pair
  /// 0 is the first. `pairs`: how many pairs the field extends over.
  void add(int row, int pair, const Control& caption, QLayout* field, int pairs = 1);
  void add(int row, int pair, const Control& caption, const Control& field, int pairs = 1);
  /// The same with a caption in words, which comes and goes with the field.
  QLabel* add(int row, int pair, const QString& caption, const Control& field, int pairs = 1);
  /// Lets a control and the one that lies over it share one place.
  void addCovered(int row, int pair, const Control& caption, const Control& covered,
                  const Control& cover, int pairs = 1);

 private:
  void addCaption(int row, int pair, QWidget* caption);
  void addField(int row, int pair, QWidget* field, int pairs);

  FormFace& faces_;
  QGridLayout* grid_;
};

/// Fields one below the other, each with the caption that it has itself.
template <class... Controls>
QWidget* makeColumn(FormFace& faces, const Controls&... controls) {
  auto* holder = new QWidget;
  Fields fields(faces, holder);
  fields.grid()->setContentsMargins(0, 0, 0, 0);
  int row = 0;
  (fields.add(row++, 0, fromText(controls.caption()), controls), ...);
  fields.grid()->setRowStretch(row, 1);
  return holder;
}

/// A box with a heading.
QGroupBox* makeGroup(std::string_view heading);

/// Between a frame's edge and its content.
inline constexpr QMargins insideFrame(8, 4, 8, 6);

/// Lets the label name the field for screen readers; a list has no other name there. Both belong in
/// one window part.
void nameBy(QLabel& label, const Face& field);

void makeBold(QWidget& words);

// On a small screen, or where letters are large, these ask for what the screen has room for, so
// that nobody has to scroll sideways.

/// Lets a field beside its caption have room for so many characters.
void keepRoom(QWidget& field, int characters);
/// Lets a table or list have room for so many characters and lines.
void keepRoom(QWidget& list, int characters, int lines);

/// A row of widgets and the room that is left after them.
QHBoxLayout* makeRow(std::initializer_list<QWidget*> widgets);

/// Labels one below the other whose texts may be long.
void addNotes(QBoxLayout& rows, FormFace& faces, std::initializer_list<const Control*> labels);

/// The accepting and closing buttons at the foot of a dialog, the same width, on the right.
QHBoxLayout* makeButtonRow(FormFace& faces, const Control& accept, const Control& close);

}  // namespace awizo::desktop
