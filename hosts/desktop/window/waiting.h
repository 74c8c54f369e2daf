#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QLabel>

#include "hosts/desktop/window/moving_bar.h"

namespace awizo::desktop {

/// While the control works, the wait cursor stands and the user's input goes nowhere and isn't kept
/// for later. Where the work can last, a panel over the window tells what is being done, with a bar
/// that moves. A box that must be answered sets the waiting aside.
class Waiting : public QObject {
 public:
  /// The panel stands in the middle of `window`.
  explicit Waiting(QWidget& window);
  ~Waiting() override;

  /// The wait lasts as long as one of these lives.
  class Span {
   public:
    explicit Span(Waiting& waiting) : waiting_(waiting) { waiting_.begin(); }
    ~Span() { waiting_.end(); }
    Span(const Span&) = delete;
    Span& operator=(const Span&) = delete;

   private:
    Waiting& waiting_;
  };
  /// While one lives, the user answers something.
  class Aside {
   public:
    explicit Aside(Waiting& waiting) : waiting_(waiting) { waiting_.setAside(); }
    ~Aside() { waiting_.takeUp(); }
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;

   private:
    Waiting& waiting_;
  };

  bool lasts() const { return spans_ > 0; }
  QString text() const { return text_->text(); }
  const MovingBar& bar() const { return *bar_; }

  /// Tells the user what is being done, until the wait ends.
  void show(const QString& what);
  /// Called often during the work: moves the bar and paints, at most some thirty times a second.
  void goOn();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void begin();
  void end();
  void setAside();
  void takeUp();
  void apply();
  void showPanel();
  void place();
  void paintNow();

  QWidget& window_;
  QFrame* panel_;
  QLabel* text_;
  MovingBar* bar_;
  QElapsedTimer sinceMove_;
  int spans_ = 0;
  int asides_ = 0;
  bool applied_ = false;
};

}  // namespace awizo::desktop
