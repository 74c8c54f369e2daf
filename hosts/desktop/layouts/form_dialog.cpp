#include "hosts/desktop/layouts/form_dialog.h"

#include <QCloseEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "hosts/desktop/layouts/wrapping.h"

namespace awizo::desktop {

FormDialog::FormDialog(Form& form, QWidget* parent) : QDialog(parent), faces_(form, *this) {
  setObjectName(fromText(form.name()));
  setWindowTitle(fromText(form.caption()));
  faces_.onChange = [this](const Change& change) { showChange(change); };
}

void FormDialog::showChange(const Change& change) {
  if (change.aspect == Aspect::content) setWindowTitle(fromText(form().caption()));
  if (change.aspect != Aspect::visible || form().shown()) return;
  const auto following = faces_.following();
  hide();
  if (loop_ != nullptr) loop_->quit();
}

void FormDialog::makeScrollable() {
  content_ = new QWidget;
  content_->setLayout(layout());
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(new Scrolled(content_));
}

QSize FormDialog::roomWanted() {
  // What scrolls doesn't hear that its content has grown, nor does a dialog that isn't seen.
  if (content_ != nullptr) content_->layout()->activate();
  for (int place = 0; place < layout()->count(); ++place) {
    if (QWidget* part = layout()->itemAt(place)->widget()) part->updateGeometry();
  }
  const QSize room = roomFor(*this);
  QSize wanted = sizeHint();
  if (content_ == nullptr) return wanted.boundedTo(room);
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  // What has no room side by side stands one below the other.
  if (content_->hasHeightForWidth()) {
    const QSize usual = content_->sizeHint();
    const int width = wanted.width() > room.width() ? room.width() - bar : usual.width();
    wanted.rheight() += std::max(content_->heightForWidth(width) - usual.height(), 0);
  }
  // Where it scrolls, the bar stands beside the content. Content that flows is tried beside it even
  // where it needn't scroll, and must not be higher then.
  if (wanted.height() > room.height() || content_->hasHeightForWidth()) wanted.rwidth() += bar;
  return wanted.boundedTo(room);
}

void FormDialog::takeRoom() { resize(roomWanted()); }

void FormDialog::takeMoreRoom() { resize(size().expandedTo(roomWanted())); }

void FormDialog::open() {
  setWindowModality(Qt::ApplicationModal);
  faces_.showAll();
  // More may be seen of it than the last time.
  takeMoreRoom();
  {
    const auto following = faces_.following();
    show();
    activateWindow();
  }
  faces_.followFocus();
}

void FormDialog::runUntilHidden() {
  QEventLoop loop;
  loop_ = &loop;
  loop.exec();
  loop_ = nullptr;
}

void FormDialog::closeEvent(QCloseEvent* event) {
  event->ignore();
  faces_.act([this] { form().userClose(); });
}

}  // namespace awizo::desktop
