#pragma once

#include <QLabel>
#include <QWidget>

#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/layouts/long_text.h"
#include "session/record/editor.h"

namespace awizo::desktop {

/// The bottom line: on-line state, address, what was done last, version. The labels are no controls
/// of the form.
struct Status {
  QWidget* line = nullptr;
  QLabel* address = nullptr;     ///< where documents are sent to
  LongText* standing = nullptr;  ///< what was done last
};

/// Puts every face of the main form into the form's window. `lineStrip` comes below the lines.
Status layOutMain(Editor& editor, FormFace& faces, QWidget& lineStrip);

// Its parts, each one widget.
QWidget* makeHeader(AwizoForm& form, FormFace& faces);
QWidget* makeLines(Editor& editor, FormFace& faces, QWidget& strip);
QWidget* makePackages(AwizoForm& form, FormFace& faces);
/// The totals, and below them the document's ways in and out.
QWidget* makeTotals(AwizoForm& form, FormFace& faces);
Status makeStatus(AwizoForm& form, FormFace& faces);

}  // namespace awizo::desktop
