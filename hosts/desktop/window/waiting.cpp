#include "hosts/desktop/window/waiting.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>
#include <QWindow>

namespace awizo::desktop {
namespace {

constexpr int millisecondsBetweenMoves = 33;

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

}  // namespace

Waiting::Waiting(QWidget& window)
    : window_(window),
      panel_(new QFrame(&window)),
      text_(new QLabel(panel_)),
      bar_(new MovingBar(panel_)) {
  panel_->setObjectName("waitingPanel");
  panel_->setFrameShape(QFrame::StyledPanel);
  panel_->setAutoFillBackground(true);
  panel_->setBackgroundRole(QPalette::Base);
  text_->setTextFormat(Qt::PlainText);
  text_->setAlignment(Qt::AlignCenter);
  auto* rows = new QVBoxLayout(panel_);
  const int space = panel_->fontMetrics().height();
  rows->setContentsMargins(2 * space, space, 2 * space, space);
  rows->setSpacing(space / 2);
  rows->addWidget(text_);
  rows->addWidget(bar_);
  panel_->hide();
  window_.installEventFilter(this);
}

Waiting::~Waiting() {
  spans_ = 0;
  apply();
}

void Waiting::show(const QString& what) {
  text_->setText(what);
  bar_->advance();
  if (!applied_) return;
  showPanel();
  paintNow();
}

void Waiting::goOn() {
  if (!applied_ || (sinceMove_.isValid() && sinceMove_.elapsed() < millisecondsBetweenMoves)) {
    return;
  }
  bar_->advance();
  paintNow();
}

void Waiting::begin() {
  if (spans_++ == 0) text_->clear();
  apply();
}

void Waiting::end() {
  if (spans_ == 1 && applied_) {
    // What the work changed is laid out before it is painted.
    QCoreApplication::sendPostedEvents();
    // Clicks and keys that still wait were meant for the window as it was.
    QCoreApplication::processEvents();
  }
  --spans_;
  apply();
  if (spans_ > 0) return;
  if (answered_) answered_->close();
  onEnd.tell(*this);
}

void Waiting::setAside() {
  ++asides_;
  apply();
}

void Waiting::takeUp() {
  --asides_;
  apply();
}

void Waiting::apply() {
  const bool wanted = spans_ > 0 && asides_ == 0;
  if (wanted == applied_) return;
  applied_ = wanted;
  if (wanted) {
    qApp->installEventFilter(this);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!text_->text().isEmpty()) showPanel();
  } else {
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
    panel_->hide();
  }
}

void Waiting::showPanel() {
  place();
  panel_->show();
  panel_->raise();
}

void Waiting::place() {
  const QSize size =
      panel_->sizeHint().expandedTo({window_.fontMetrics().averageCharWidth() * 50, 0});
  panel_->setGeometry((window_.width() - size.width()) / 2, (window_.height() - size.height()) / 2,
                      size.width(), size.height());
}

/// The events that a painted, living window needs; the user's go nowhere, as the filter sees to.
void Waiting::paintNow() {
  sinceMove_.start();
  QCoreApplication::processEvents();
}

/// An event comes to the window of the system first, and then to the widget in it.
bool Waiting::isAnswered(const QObject* watched) const {
  if (!answered_) return false;
  const auto* widget = qobject_cast<const QWidget*>(watched);
  return widget != nullptr ? widget->window() == answered_ : watched == answered_->windowHandle();
}

bool Waiting::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &window_ && event->type() == QEvent::Resize) place();
  return applied_ && isInput(event->type()) && !isAnswered(watched);
}

}  // namespace awizo::desktop
