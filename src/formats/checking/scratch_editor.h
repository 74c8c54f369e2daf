#pragma once

#include <string>
#include <vector>

#include "platform/forms/screen.h"
#include "session/record/editor.h"

namespace awizo {

/// A screen with nobody in front of it: boxes are kept, and answered at once with what goes on.
class SilentFace : public ScreenFace {
 public:
  std::vector<MessageBox> boxes;

  Answer ask(const MessageBox& box) override;
  void runModal(Form& form) override;
  void cursorChanged(Cursor) override {}
  void letEventsRun() override {}
  void endProgram() override {}
};

/// An editor that lives for the reading of one document, on the given surroundings but for their
/// screen. It is as after its start off line without local files.
struct ScratchEditor {
  explicit ScratchEditor(const Platform& surroundings);

  SilentFace face;
  Screen screen{face};
  Platform platform;
  SessionState session;
  AwizoForm form;
  Editor editor;
};

}  // namespace awizo
