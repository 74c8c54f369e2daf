#include "formats/upper/checking/scratch_editor.h"

#include "session/set_up.h"

namespace awizo {

Answer SilentFace::ask(const MessageBox& box) {
  return box.buttons == BoxButtons::ok ? Answer::ok : Answer::yes;
}

void SilentFace::runModal(Form& form) { form.hide(); }

ScratchEditor::ScratchEditor(const Platform& platform)
    : session(platform), form(screen, platform.clock), editor(platform, screen, session, form) {
  setUpControl(editor);
}

}  // namespace awizo
