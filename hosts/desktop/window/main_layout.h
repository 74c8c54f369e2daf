#pragma once

#include <QLabel>
#include <QWidget>

#include "hosts/desktop/faces/form_face.h"
#include "session/record/editor.h"

namespace awizo::desktop {

/// Puts every face of the main form into the form's window. Returns the label for the address that
/// documents are sent to, which is no control of the form.
QLabel* layOutMain(Editor& editor, FormFace& faces);

// Its parts, each one widget.
QWidget* makeHeader(AwizoForm& form, FormFace& faces);
QWidget* makeLines(Editor& editor, FormFace& faces);
QWidget* makePackages(AwizoForm& form, FormFace& faces);
/// The totals, and below them the document's ways in and out.
QWidget* makeTotals(AwizoForm& form, FormFace& faces);
/// On-line state, address, version.
struct Status {
  QWidget* line;
  QLabel* address;
};
Status makeStatus(AwizoForm& form, FormFace& faces);

}  // namespace awizo::desktop
