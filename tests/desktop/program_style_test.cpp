#include "hosts/desktop/faces/program_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QToolButton>

namespace awizo::desktop {
namespace {

/// The style for one test. What the other tests run with comes back.
class ProgramStyleTest : public testing::Test {
 protected:
  ProgramStyleTest() { setProgramStyle(); }
  ~ProgramStyleTest() override { QApplication::setStyle(usual_); }

 private:
  QString usual_ = QApplication::style()->name();
};

QImage painted(QWidget& widget) {
  QImage image(widget.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  widget.render(&image);
  return image;
}

TEST_F(ProgramStyleTest, AMenuBarTooNarrowShowsThatThereIsMore) {
  QMenuBar bar;
  for (const char* heading : {"Файл", "Правка", "Бумаги", "Справка"}) bar.addMenu(heading);
  bar.resize(90, 24);
  bar.show();
  auto* more = bar.findChild<QToolButton*>();
  ASSERT_NE(more, nullptr);
  ASSERT_TRUE(more->isVisible());

  const QImage withArrows = painted(*more);
  more->setIcon({});
  EXPECT_NE(withArrows, painted(*more));
}

TEST_F(ProgramStyleTest, TheArrowsStandOnWhatIsBelowThem) {
  QImage image(16, 16, QImage::Format_RGB32);
  image.fill(Qt::yellow);
  QPainter painter(&image);
  QApplication::style()
      ->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton)
      .paint(&painter, image.rect());
  painter.end();

  int drawn = 0;
  for (int at = 0; at < 256; ++at) {
    drawn += image.pixelColor(at % 16, at / 16) == QColor(Qt::yellow) ? 0 : 1;
  }
  EXPECT_GT(drawn, 10);
  EXPECT_LT(drawn, 150);
}

}  // namespace
}  // namespace awizo::desktop
