#include "hosts/desktop/faces/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace awizo::desktop {
namespace {

/// Draws an icon again at every size and in the present colours: what the file draws in black takes
/// the colour of texts.
class IconEngine : public QIconEngine {
 public:
  explicit IconEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    const QColor colour =
        palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                      mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
    QByteArray drawing = drawing_;
    drawing.replace("#000000", colour.name().toLatin1());
    if (mode == QIcon::Disabled) painter->setOpacity(0.45);
    QSvgRenderer(drawing).render(painter, QRectF(rect));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap made(size);
    made.fill(Qt::transparent);
    QPainter painter(&made);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return made;
  }

  QIconEngine* clone() const override { return new IconEngine(drawing_); }

 private:
  QByteArray drawing_;
};

}  // namespace

QIcon iconNamed(const QString& name) {
  QFile file(":/awizo/" + name + ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new IconEngine(file.readAll()));
}

}  // namespace awizo::desktop
