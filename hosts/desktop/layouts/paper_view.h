#pragma once

#include <QWidget>

namespace awizo {
class PapersDialog;
}

namespace awizo::desktop {

/// The sheet that the dialog shows, as large as there is room.
class PaperView : public QWidget {
 public:
  explicit PaperView(const PapersDialog& form);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const PapersDialog& form_;
};

}  // namespace awizo::desktop
