#pragma once

#include <QLayout>
#include <QScrollArea>
#include <QWidget>
#include <memory>
#include <vector>

namespace awizo::desktop {

/// A layout of a list of items.
class ListLayout : public QLayout {
 public:
  using QLayout::QLayout;

  void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  bool hasHeightForWidth() const override { return true; }
  /// All items in one line.
  QSize sizeHint() const override;
  /// Each item in a line of its own is the narrowest.
  QSize minimumSize() const override;

 protected:
  const std::vector<std::unique_ptr<QLayoutItem>>& items() const { return items_; }

 private:
  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

/// Widgets side by side, on as many lines as the width asks for.
class WrappingLayout : public ListLayout {
 public:
  using ListLayout::ListLayout;

  int heightForWidth(int width) const override {
    return place({0, 0, width, 0}, Placing::measured);
  }
  void setGeometry(const QRect& area) override;

 private:
  enum class Placing { measured, done };
  /// Returns the height that the lines take.
  int place(const QRect& area, Placing placing) const;
};

/// Takes as much height as its wrapped content needs. By a height that depends on the width the
/// whole window would ask for more than its least height, and scroll on a screen that has just
/// that.
class Wrapped : public QWidget {
 public:
  bool hasHeightForWidth() const override { return false; }
  /// The height that it needs where it is as wide as this.
  void takeHeight(int width);

 protected:
  bool event(QEvent* event) override;

 private:
  bool isDue_ = false;
};

/// Shows a widget whole where there is room for it, and lets it scroll elsewhere.
class Scrolled : public QScrollArea {
 public:
  explicit Scrolled(QWidget* content);
  QSize sizeHint() const override;
};

/// The largest size of a window on the screen of `widget`, its frame left out.
QSize roomFor(const QWidget& widget);

}  // namespace awizo::desktop
