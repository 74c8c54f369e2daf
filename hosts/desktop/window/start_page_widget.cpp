#include "hosts/desktop/window/start_page_widget.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "hosts/desktop/layouts/fields.h"

namespace awizo::desktop {
namespace {

QLabel& wrapped(FormFace& faces, const Label& label) {
  auto* text = static_cast<QLabel*>(faces.widget(label));
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setFocusPolicy(Qt::NoFocus);
  QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  text->setSizePolicy(policy);
  return *text;
}

QLayout* makeButtons(FormFace& faces, std::initializer_list<const Button*> buttons) {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  for (const Button* button : buttons) row->addWidget(faces.widget(*button));
  row->addStretch(1);
  return row;
}

}  // namespace

StartPageWidget::StartPageWidget(const GivenParts& given, QWidget* parent)
    : QWidget(parent),
      content_(new QWidget(this)),
      surroundings_(given, *this, [](std::string_view) {}),
      page_(surroundings_.platform),
      faces_(new FormFace(page_, *content_)) {
  surroundings_.face.setMainWindow(page_, *this);
  auto* column = new QVBoxLayout(content_);
  column->setSpacing(14);
  column->addStretch(1);
  auto* heading = new QLabel(fromText(page_.caption()));
  QFont large = heading->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  heading->setFont(large);
  column->addWidget(heading);
  column->addWidget(makeWhy());
  column->addWidget(makeUnfinished());
  column->addWidget(makeOffLine());
  column->addWidget(makeOnLine());
  column->addStretch(2);
  content_->setMaximumWidth(fontMetrics().averageCharWidth() * 90);

  auto* whole = new QHBoxLayout(this);
  whole->addStretch(1);
  whole->addWidget(content_, 8);
  whole->addStretch(1);
  faces_->showAll();
}

StartPageWidget::~StartPageWidget() {
  endWork();
  surroundings_.face.releaseDialogs();
  delete faces_;
}

QWidget* StartPageWidget::makeWhy() {
  auto* holder = new QWidget;
  auto* row = new QHBoxLayout(holder);
  row->setContentsMargins(0, 0, 0, 0);
  QLabel& why = wrapped(*faces_, page_.lblWhy);
  makeBold(why);
  row->addWidget(&why, 1);
  row->addWidget(faces_->widget(page_.btnAgain));
  return holder;
}

QWidget* StartPageWidget::makeUnfinished() {
  QWidget* frame = faces_->widget(page_.frmUnfinished);
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(insideFrame);
  row->setSpacing(8);
  row->addWidget(&wrapped(*faces_, page_.lblUnfinished), 1);
  row->addWidget(faces_->widget(page_.btnGoOn));
  return frame;
}

QWidget* StartPageWidget::makeOffLine() {
  QWidget* frame = faces_->widget(page_.frmOffLine);
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(insideFrame);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(8);
  const auto add = [&](int row, const std::string& words, QWidget* field) {
    auto* caption = new QLabel(fromText(words));
    caption->setBuddy(field);
    grid->addWidget(caption, row, 0);
    grid->addWidget(field, row, 1);
  };
  add(0, page_.lblFolder.heading(), &wrapped(*faces_, page_.lblFolder));
  grid->addWidget(faces_->widget(page_.btnFolder), 0, 2);
  add(1, page_.lblSeller.heading(), &wrapped(*faces_, page_.lblSeller));
  add(2, page_.cboxPartner.caption(), faces_->widget(page_.cboxPartner));
  grid->addWidget(&wrapped(*faces_, page_.lblMissing), 3, 0, 1, 3);
  grid->addLayout(makeButtons(*faces_, {&page_.btnOffLine, &page_.btnOpen}), 4, 0, 1, 3);
  grid->setColumnStretch(1, 1);
  return frame;
}

QWidget* StartPageWidget::makeOnLine() {
  QWidget* frame = faces_->widget(page_.frmOnLine);
  auto* rows = new QVBoxLayout(frame);
  rows->setContentsMargins(insideFrame);
  rows->setSpacing(8);
  rows->addWidget(&wrapped(*faces_, page_.lblOnLine));
  rows->addLayout(makeButtons(*faces_, {&page_.btnLaunchFile}));
  return frame;
}

}  // namespace awizo::desktop
