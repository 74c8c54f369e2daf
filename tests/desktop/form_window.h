#pragma once

#include <QApplication>
#include <QVBoxLayout>
#include <memory>

#include "hosts/desktop/faces/form_face.h"
#include "support/desktop/user.h"
#include "support/scripted_screen.h"

namespace awizo::test {

/// A form with the controls of a test, in a window that is shown once they are made. The screen's
/// boxes are answered by a script.
class FormWindow : public testing::Test {
 protected:
  ScriptedScreen screenFace;
  Screen screen{screenFace};
  Form form{screen, "Main"};
  std::vector<std::string> events;
  std::unique_ptr<QWidget> window;
  desktop::FormFace* faces = nullptr;

  /// Puts the faces of all controls below each other and shows the form.
  void show() {
    window = std::make_unique<QWidget>();
    faces = new desktop::FormFace(form, *window);
    auto* rows = new QVBoxLayout(window.get());
    for (const Control* control : form.controls()) rows->addWidget(faces->widget(*control));
    faces->showAll();
    window->resize(500, 400);
    window->show();
    window->activateWindow();
    settle();
    form.showMain();
    settle();
  }
  void TearDown() override { window.reset(); }

  desktop::Face& faceOf(const Control& control) { return faces->face(control); }
  QWidget* widgetOf(const Control& control) { return faces->widget(control); }

  Event note(std::string text) {
    return [this, text = std::move(text)] { events.push_back(text); };
  }
  void noteFocus(Control& control) {
    control.onValidate = note(control.name() + ".Validate");
    control.onLostFocus = note(control.name() + ".LostFocus");
    control.onGotFocus = note(control.name() + ".GotFocus");
  }
  std::vector<std::string> takeEvents() { return std::exchange(events, {}); }

  /// Whether model and screen agree that the focus is here.
  testing::AssertionResult focusIsAt(const Control& control) {
    const Control* held = form.focus();
    if (held != &control) {
      return testing::AssertionFailure()
             << "the model's focus is at " << (held == nullptr ? "none" : held->name());
    }
    if (QApplication::focusWidget() != faceOf(control).focusWidget()) {
      const QWidget* widget = QApplication::focusWidget();
      return testing::AssertionFailure()
             << "the screen's focus is at "
             << (widget == nullptr ? "none" : desktop::toText(widget->objectName()));
    }
    return testing::AssertionSuccess();
  }
};

}  // namespace awizo::test
