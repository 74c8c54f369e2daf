#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <functional>
#include <string>
#include <string_view>

#include "hosts/desktop/faces/form_face.h"

class QMessageBox;

namespace awizo::test {

// What a user does with the mouse and the keyboard, as events of the platform. Keys go to whatever
// has the focus in the active window.

/// Lets what is due run, and nothing else.
void settle();

/// The widget that keys go to now; fails the test where there is none.
QWidget* keyTarget();
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Types characters one by one.
void type(const QString& text);
/// Puts the text where Ctrl+V finds it, and presses that.
void paste(const QString& text);
void click(QWidget* widget, QPoint at = {});
void doubleClick(QWidget* widget, QPoint at = {});
void click(const desktop::Face& face);
/// Selects all the text of a field and types over it.
void typeOver(const desktop::Face& face, const QString& text);

/// Runs the act as soon as an event loop turns again: within the dialog or box that opens next.
void then(std::function<void()> act);
/// The box that waits for an answer; fails the test where there is none.
QMessageBox* openBox();
/// "icon|title|text|button,button" of the box that waits.
std::string seen(const QMessageBox& box);
/// Answers the box that opens next by its button of this caption, and keeps what was seen.
void answerNext(const QString& button, std::string* seenBox = nullptr);

/// The text that a widget shows: a field's, a label's, a list's, a button's.
std::string shownText(const QWidget* widget);
std::string shownText(const desktop::Face& face);

}  // namespace awizo::test
