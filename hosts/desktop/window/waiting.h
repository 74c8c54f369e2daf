#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <functional>

#include "hosts/desktop/window/moving_bar.h"
#include "platform/at_exit.h"
#include "platform/observers.h"

namespace awizo::desktop {

/// While the control works, the wait cursor shows and the user's input is dropped, not kept for
/// later. Where the work can last, a panel over the window shows what is being done, with a moving
/// bar. A box that must be answered suspends the waiting.
class Waiting : public QObject {
 public:
  /// The panel is in the middle of `window`.
  explicit Waiting(QWidget& window);
  ~Waiting() override;

  // The wait lasts from the first beginning to the last end.
  void begin();
  void end();
  /// While the returned object lives, the user answers something.
  auto aside() {
    setAside();
    return AtExit([this] { takeUp(); });
  }

  /// Lets the user answer this window while the work goes on; it is closed when the wait ends.
  void letAnswer(QWidget* window) { answered_ = window; }

  /// Told when the wait has ended.
  Observers<const Waiting&> onEnd;

  bool lasts() const { return spans_ > 0; }
  QString text() const { return text_->text(); }
  const MovingBar& bar() const { return *bar_; }

  /// Shows the user what is being done, until the wait ends.
  void show(const QString& what);
  /// Called often during the work: moves the bar and paints, at most some thirty times a second.
  void goOn();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void setAside();
  void takeUp();
  void apply();
  void showPanel();
  void place();
  void paintNow();

  bool isAnswered(const QObject* watched) const;

  QWidget& window_;
  QPointer<QWidget> answered_;
  QFrame* panel_;
  QLabel* text_;
  MovingBar* bar_;
  QElapsedTimer sinceMove_;
  int spans_ = 0;
  int asides_ = 0;
  bool applied_ = false;
};

}  // namespace awizo::desktop
