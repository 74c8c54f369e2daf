#pragma once

#include <QLabel>

namespace awizo::desktop {

/// Words that may be long, on as many lines as their width asks for. The lines that one text needed
/// stay for the next, so that nothing around jumps; a new width begins anew.
class LongText : public QLabel {
 public:
  explicit LongText(const QString& name);

  void setWords(const QString& words);

  /// The window's height shall not depend on it.
  bool hasHeightForWidth() const override { return false; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void takeHeight();

  int width_ = 0;  ///< for which the height was taken
};

}  // namespace awizo::desktop
