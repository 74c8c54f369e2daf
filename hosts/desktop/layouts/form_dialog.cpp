#include "hosts/desktop/layouts/form_dialog.h"

#include <QCloseEvent>
#include <QVBoxLayout>

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

void FormDialog::takeRoom() {
  if (content_ != nullptr) {
    // What scrolls doesn't hear that its content has grown.
    content_->layout()->activate();
    layout()->itemAt(0)->widget()->updateGeometry();
  }
  resize(sizeHint().boundedTo(roomFor(*this)));
}

void FormDialog::open() {
  setWindowModality(Qt::ApplicationModal);
  faces_.showAll();
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
