#include "support/desktop/user.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "hosts/desktop/faces/icons.h"

namespace awizo::test {

using desktop::toText;

namespace {

/// Gives the keys back to a window that is seen, as a window manager does. Qt's platform without a
/// screen hands them to any window when one closes, a hidden one too.
void leaveHiddenWindows() {
  const QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active->isVisible()) return;
  QWidget* top = QApplication::activeModalWidget();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (top == nullptr && window->isVisible() && window->windowType() == Qt::Window) top = window;
  }
  if (top != nullptr) top->activateWindow();
}

/// The name of the icon that the box shows, recognised by its picture.
std::string iconOf(const QMessageBox& box) {
  const QPixmap shown = box.iconPixmap();
  if (shown.isNull()) return "none";
  for (const char* name : {"critical", "question", "exclamation", "information"}) {
    const QPixmap known = desktop::iconNamed(name).pixmap(shown.size());
    if (known.toImage() == shown.toImage()) return name;
  }
  return "unknown";
}

/// Whether the window on top has heard that it is the active one.
bool topIsActive() {
  leaveHiddenWindows();
  const QWidget* modal = QApplication::activeModalWidget();
  const QWidget* active = QApplication::activeWindow();
  if (active == nullptr || !active->isVisible()) return false;
  return modal == nullptr || active == modal;
}

}  // namespace

void settle() { QCoreApplication::processEvents(); }

QWidget* keyTarget() {
  if (QWidget* popup = QApplication::activePopupWidget()) {
    return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
  }
  EXPECT_TRUE(QTest::qWaitFor(topIsActive, 1000)) << "the topmost window is not active";
  QWidget* focus = QApplication::focusWidget();
  if (focus != nullptr) return focus;
  QWidget* window = QApplication::activeWindow();
  EXPECT_NE(window, nullptr) << "no window is active";
  return window;
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* target = keyTarget();
  if (target == nullptr) return;
  const bool beyondAscii = key > 0x7f && key < Qt::Key_Escape;
  if (beyondAscii) {
    QTest::sendKeyEvent(QTest::Click, target, key, QString(QChar(key)), modifiers);
  } else {
    QTest::keyClick(target, key, modifiers);
  }
}

void type(const QString& text) {
  for (const QChar character : text) {
    // A key may have moved the focus or opened a pop-up.
    QWidget* target = keyTarget();
    if (target == nullptr) return;
    const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
    QTest::sendKeyEvent(QTest::Click, target, key, QString(character), Qt::NoModifier);
  }
}

void paste(const QString& text) {
  QApplication::clipboard()->setText(text);
  press(Qt::Key_V, Qt::ControlModifier);
}

void click(QWidget* widget, QPoint at) {
  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, at);
}

void doubleClick(QWidget* widget, QPoint at) {
  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, at);
  QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, at);
}

void click(const desktop::Face& face) { click(face.focusWidget()); }

void typeOver(const desktop::Face& face, const QString& text) {
  click(face);
  press(Qt::Key_A, Qt::ControlModifier);
  type(text);
}

void then(std::function<void()> act) {
  QTimer::singleShot(0, qApp, [act = std::move(act)] {
    if (topIsActive()) {
      act();
    } else {
      then(act);
    }
  });
}

QMessageBox* openBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  EXPECT_NE(box, nullptr) << "no box is open";
  return box;
}

std::string seen(const QMessageBox& box) {
  std::string buttons;
  for (const QAbstractButton* button : box.buttons()) {
    if (!buttons.empty()) buttons += ",";
    buttons += toText(button->text());
  }
  return iconOf(box) + "|" + toText(box.windowTitle()) + "|" + toText(box.text()) + "|" + buttons;
}

void answerNext(const QString& button, std::string* seenBox) {
  then([button, seenBox] {
    QMessageBox* box = openBox();
    if (box == nullptr) return;
    if (seenBox != nullptr) *seenBox = seen(*box);
    for (QAbstractButton* offered : box->buttons()) {
      if (offered->text() == button) return click(offered);
    }
    ADD_FAILURE() << "no such button: " << toText(button);
    box->close();
  });
}

std::string shownText(const QWidget* widget) {
  if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) return toText(edit->text());
  if (const auto* label = qobject_cast<const QLabel*>(widget)) return toText(label->text());
  if (const auto* box = qobject_cast<const QComboBox*>(widget)) return toText(box->currentText());
  if (const auto* group = qobject_cast<const QGroupBox*>(widget)) return toText(group->title());
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
    return toText(button->text());
  }
  if (const auto* edit = widget->findChild<QLineEdit*>()) return toText(edit->text());
  return "(shows no text)";
}

std::string shownText(const desktop::Face& face) { return shownText(face.widget()); }

}  // namespace awizo::test
