#pragma once

#include <QAction>
#include <functional>
#include <vector>

#include "hosts/desktop/faces/form_face.h"
#include "session/record/awizo_form.h"

namespace awizo::desktop {

/// What the user can do to the document, for menus and keys. Each command presses one button of the
/// main form without moving the focus, and is enabled and shown as the button is. Keys of a table's
/// commands work while that table has the focus.
class Commands : public QObject {
 public:
  /// The keys reach `window` and what is in it.
  Commands(AwizoForm& form, FormFace& faces, QWidget& window);

  QAction* open;
  QAction* save;
  QAction* send;
  QAction* addLine;
  QAction* editLine;
  QAction* removeLine;
  QAction* addPackage;
  QAction* editPackage;
  QAction* removePackage;

  /// Shows the buttons' states.
  void follow();

 private:
  struct Entry {
    QAction* action;
    Button* button;
  };

  QAction* make(Button& button, const QString& text, const QString& picture);
  void giveKeys(QAction* action, const QList<QKeySequence>& keys, QWidget& where,
                Qt::ShortcutContext context);
  void press(Button& button);

  AwizoForm& form_;
  FormFace& faces_;
  std::vector<Entry> entries_;
};

}  // namespace awizo::desktop
