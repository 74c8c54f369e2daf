#include "hosts/desktop/faces/program_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QProxyStyle>

namespace awizo::desktop {
namespace {

/// Says by two arrows that there is more than the bar has room for; drawn when it is shown.
class MoreArrows : public QIconEngine {
 public:
  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter->setPen(QApplication::palette().color(group, QPalette::ButtonText));
    QFont font = painter->font();
    font.setPixelSize(place.height());
    painter->setFont(font);
    painter->drawText(place, Qt::AlignCenter, "»");
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, drawn.rect(), mode, state);
    return drawn;
  }

  QIconEngine* clone() const override { return new MoreArrows; }
};

class ProgramStyle : public QProxyStyle {
 public:
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override {
    if (icon == SP_ToolBarHorizontalExtensionButton) return QIcon(new MoreArrows);
    return QProxyStyle::standardIcon(icon, option, widget);
  }
};

}  // namespace

void setProgramStyle() { QApplication::setStyle(new ProgramStyle); }

}  // namespace awizo::desktop
