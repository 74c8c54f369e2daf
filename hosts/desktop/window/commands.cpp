#include "hosts/desktop/window/commands.h"

#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/faces/pictures.h"

namespace awizo::desktop {

Commands::Commands(AwizoForm& form, FormFace& faces, QWidget& window)
    : QObject(&window), open(nullptr), save(nullptr), send(nullptr), form_(form), faces_(faces) {
  open = make(form.btnWczytaj, "&Открыть…", "open");
  save = make(form.btnZapisz, "&Сохранить…", "save");
  send = make(form.btnPrzeslij, "О&тправить", "send");
  addLine = make(form.btnDodaj, "&Добавить строку…", "add");
  editLine = make(form.btnEdytuj, "&Изменить строку…", "edit");
  removeLine = make(form.btnUsun, "&Удалить строку", "remove");
  addPackage = make(form.btnDodajOpak, "До&бавить упаковку…", "add");
  editPackage = make(form.btnEdytujOpak, "Из&менить упаковку…", "edit");
  removePackage = make(form.btnUsunOpak, "Уд&алить упаковку", "remove");

  const auto inWindow = Qt::WidgetWithChildrenShortcut;
  giveKeys(open, {QKeySequence(Qt::CTRL | Qt::Key_O)}, window, inWindow);
  giveKeys(save, {QKeySequence(Qt::CTRL | Qt::Key_S)}, window, inWindow);
  giveKeys(send, {QKeySequence(Qt::Key_F9)}, window, inWindow);

  const auto onTable = Qt::WidgetShortcut;
  const QList<QKeySequence> insert{QKeySequence(Qt::Key_Insert)};
  const QList<QKeySequence> remove{QKeySequence(Qt::Key_Delete)};
  QWidget& lines = *faces.widget(form.grdPozycje);
  giveKeys(addLine, insert, lines, onTable);
  // On the lines Enter is the table's own: it edits what the current column holds.
  giveKeys(editLine, {QKeySequence(Qt::Key_F2)}, lines, onTable);
  giveKeys(removeLine, remove, lines, onTable);
  QWidget& packages = *faces.widget(form.grdOpakowania);
  giveKeys(addPackage, insert, packages, onTable);
  giveKeys(editPackage,
           {QKeySequence(Qt::Key_F2), QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)},
           packages, onTable);
  giveKeys(removePackage, remove, packages, onTable);
  follow();
}

QAction* Commands::make(Button& button, const QString& text, const QString& picture) {
  auto* action = new QAction(pictureNamed(picture), text, this);
  entries_.push_back({action, &button});
  connect(action, &QAction::triggered, this, [this, &button] { press(button); });
  return action;
}

void Commands::giveKeys(QAction* action, const QList<QKeySequence>& keys, QWidget& where,
                        Qt::ShortcutContext context) {
  action->setShortcuts(keys);
  action->setShortcutContext(context);
  where.addAction(action);
  // The button tells its key.
  const QString words = action->text().remove('&').remove(u'…');
  const QString tip = words + " (" + keys.front().toString(QKeySequence::NativeText) + ")";
  for (const Entry& entry : entries_) {
    if (entry.action != action) continue;
    static_cast<ButtonFace&>(faces_.face(*entry.button)).setTip(tip);
  }
}

void Commands::press(Button& button) {
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  faces_.act([&] { button.userPress(); });
}

void Commands::follow() {
  const bool ready = form_.shown() && form_.enabled();
  for (const Entry& entry : entries_) {
    entry.action->setEnabled(ready && entry.button->enabled() && entry.button->visible());
    entry.action->setVisible(entry.button->visible());
  }
}

}  // namespace awizo::desktop
