#pragma once

#include <QWidget>

#include "hosts/desktop/faces/form_face.h"
#include "session/record/awizo_form.h"

namespace awizo::desktop {

/// Gives every face of the main form its place in the form's window.
void layOutMain(AwizoForm& form, FormFace& faces);

// Its parts, each one widget.
QWidget* makeHeader(AwizoForm& form, FormFace& faces);
QWidget* makeLines(AwizoForm& form, FormFace& faces);
QWidget* makePackages(AwizoForm& form, FormFace& faces);
/// The totals, and below them the document's ways in and out.
QWidget* makeTotals(AwizoForm& form, FormFace& faces);
/// On-line state, address, version. The address stands in the label named "lblUploadUrl".
QWidget* makeStatus(AwizoForm& form, FormFace& faces);

}  // namespace awizo::desktop
