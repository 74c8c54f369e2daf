#pragma once

#include "platform/forms/screen.h"
#include "session/record/editor.h"

namespace awizo {

/// A screen with nobody in front of it: boxes are answered at once with the button that continues.
class SilentFace : public ScreenFace {
 public:
  Answer ask(const MessageBox& box) override;
  void runModal(Form& form) override;
  void cursorChanged(Cursor) override {}
  void letEventsRun() override {}
  void endProgram() override {}
};

/// An editor that lives for the reading of one document, on the given surroundings and a screen of
/// its own. It is as after its start off line without local files.
struct ScratchEditor {
  explicit ScratchEditor(const Platform& platform);

  SilentFace face;
  Screen screen{face};
  SessionState session;
  AwizoForm form;
  Editor editor;
};

}  // namespace awizo
