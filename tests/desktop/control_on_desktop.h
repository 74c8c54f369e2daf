#pragma once

#include <QTimer>
#include <memory>

#include "hosts/desktop/layouts/form_dialog.h"
#include "hosts/desktop/screen/desktop_screen_face.h"
#include "session/awizo_wysylki.h"
#include "support/desktop/user.h"
#include "support/test_editor.h"

namespace awizo::test {

/// A control that has started off line, its main form in a plain window and its dialogs in theirs,
/// with a user in front of it.
class ControlOnDesktop : public TestSurroundings {
 public:
  explicit ControlOnDesktop(std::string_view localeName = "ru_RU");
  ~ControlOnDesktop();

  /// Catalogues of the demo, as a start on line would have read them.
  void loadCatalogues();
  /// Two lines and three packages.
  void fillDocument();

  desktop::Face& face(const Control& shown);
  QWidget* widget(const Control& shown) { return face(shown).widget(); }
  desktop::FormDialog& dialog(Form& shown) { return desktop.dialog(shown); }

  /// Presses Tab until the focus is there.
  void tabTo(const Control& wanted);
  /// Whether keys go to this control's face, as the model says.
  testing::AssertionResult keysGoTo(const Control& shown);

  desktop::DesktopScreenFace desktop;
  Platform desktopPlatform;
  SessionState session;
  AwizoWysylki control;
  AwizoForm& form = control.form;
  QWidget mainWindow;
  desktop::FormFace* mainFaces = nullptr;

 private:
  QTimer patience_;  ///< ends a test that waits for a user who isn't there
};

}  // namespace awizo::test
