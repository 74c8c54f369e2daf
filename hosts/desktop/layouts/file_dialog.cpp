#include "formats/file_dialog.h"

#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"
#include "platform/forms/face_words.h"

namespace awizo::desktop {
namespace {

void dress(FormFace& faces, const PictureButton& button, const QString& icon,
           std::string_view words) {
  ButtonFace& face = faces.button(button);
  face.setIcon(icon, fromText(words));
  face.setWords(fromText(words));
}

void placeLists(DlgWczytajZapisz& form, FormFace& faces) {
  auto* grid = new QGridLayout(faces.widget(form.Frame1));
  grid->addWidget(faces.widget(form.Drive), 0, 0);
  // Nothing stands before the drives; a list is named by a label alone.
  auto* drives = new QLabel(fromText(words::drives), faces.widget(form.Frame1));
  drives->hide();
  nameBy(*drives, faces.face(form.Drive));
  grid->addWidget(faces.widget(form.DirList), 1, 0);
  grid->addWidget(faces.widget(form.FileList), 0, 1, 2, 1);
  grid->setColumnStretch(0, 2);
  grid->setColumnStretch(1, 3);
  grid->setRowStretch(1, 1);
}

}  // namespace

void layOut(DlgWczytajZapisz& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  placeLists(form, faces);
  Fields fields(faces, nullptr);
  fields.add(0, 0, fromText(words::fileName), form.txtAwizoPlik);
  fields.add(1, 0, fromText(words::folder), form.lblOffLinePath);

  dress(faces, form.ImageWczytaj, "open", words::chooseFile);
  dress(faces, form.ImageZapisz, "save", words::writeFile);
  dress(faces, form.ImageZamknij, "close", words::closeDialog);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(faces.widget(form.btnWczytaj));
  buttons->addStretch(1);
  buttons->addWidget(faces.widget(form.ImageWczytaj));
  buttons->addWidget(faces.widget(form.ImageZapisz));
  buttons->addWidget(faces.widget(form.ImageZamknij));

  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(10);
  rows->addWidget(faces.widget(form.Frame1), 1);
  rows->addLayout(fields.grid());
  rows->addLayout(buttons);
  keepRoom(*faces.widget(form.Frame1), 90, 20);
}

}  // namespace awizo::desktop
