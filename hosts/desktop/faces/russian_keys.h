#pragma once

#include <QKeyEvent>
#include <QObject>

namespace awizo::desktop {

/// What the key of this Latin letter says on a Russian keyboard; 0 for another key.
Qt::Key onRussianKeyboard(Qt::Key latin);

/// Where Russian is the only layout, no key has a Latin letter: Ctrl with a Russian one means the
/// Latin one on the same key, for fields as for actions. With a Latin layout beside it Qt knows
/// that by itself. Watches the whole application.
class RussianKeys : public QObject {
 public:
  explicit RussianKeys(QObject* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isFields_ = false;  ///< the field that has the focus wants the last key before all actions
};

}  // namespace awizo::desktop
