#include "hosts/desktop/faces/make_face.h"

#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/faces/file_faces.h"
#include "hosts/desktop/faces/label_faces.h"
#include "hosts/desktop/faces/list_face.h"
#include "hosts/desktop/faces/picker_faces.h"
#include "hosts/desktop/faces/spin_face.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/faces/text_field_face.h"

namespace awizo::desktop {
namespace {

template <class FaceOfKind, class Kind>
Face* make(FormFace& form, Control& control, QWidget* parent) {
  auto* face = new FaceOfKind(form, dynamic_cast<Kind&>(control), parent);
  face->showAll();
  return face;
}

}  // namespace

Face* makeFace(FormFace& form, Control& control, QWidget* parent) {
  switch (control.kind()) {
    case ControlKind::label:
      return make<LabelFace, Label>(form, control, parent);
    case ControlKind::textField:
      return make<TextFieldFace, TextField>(form, control, parent);
    case ControlKind::button:
    case ControlKind::pictureButton:
      return make<ButtonFace, Button>(form, control, parent);
    case ControlKind::dropDownList:
      return make<ListFace, DropDownList>(form, control, parent);
    case ControlKind::datePicker:
      return make<DateFace, DatePicker>(form, control, parent);
    case ControlKind::timePicker:
      return make<TimeFace, TimePicker>(form, control, parent);
    case ControlKind::spinButtons:
      return make<SpinFace, SpinButtons>(form, control, parent);
    case ControlKind::table:
      return make<TableFace, Table>(form, control, parent);
    case ControlKind::driveList:
      return make<DriveFace, DriveList>(form, control, parent);
    case ControlKind::folderList:
      return make<FolderFace, FolderList>(form, control, parent);
    case ControlKind::fileList:
      return make<FileListFace, FileList>(form, control, parent);
    case ControlKind::frame:
      return make<FrameFace, Frame>(form, control, parent);
  }
  return nullptr;
}

}  // namespace awizo::desktop
