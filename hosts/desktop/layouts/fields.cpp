#include "hosts/desktop/layouts/fields.h"

#include <QLineEdit>
#include <algorithm>

#include "hosts/desktop/faces/group_box.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "linedialog/captions.h"

namespace awizo::desktop {
namespace {

/// Shows the caption whenever its field is shown.
class CaptionFollows : public QObject {
 public:
  CaptionFollows(QLabel* caption, QWidget* field) : QObject(caption), caption_(caption) {
    field->installEventFilter(this);
    caption->setVisible(!field->isHidden());
  }

 protected:
  bool eventFilter(QObject* field, QEvent* event) override {
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
      caption_->setVisible(event->type() == QEvent::ShowToParent);
    }
    return QObject::eventFilter(field, event);
  }

 private:
  QLabel* caption_;
};

}  // namespace

Fields::Fields(FormFace& faces, QWidget* parent) : faces_(faces), grid_(new QGridLayout(parent)) {
  grid_->setHorizontalSpacing(8);
  grid_->setVerticalSpacing(6);
}

void Fields::addCaption(int row, int pair, QWidget* caption) {
  // The second pair's captions keep some distance from the first pair's fields.
  caption->setContentsMargins(pair == 0 ? 0 : 12, 0, 0, 0);
  grid_->addWidget(caption, row, 2 * pair, Qt::AlignLeft | Qt::AlignVCenter);
}

void Fields::addField(int row, int pair, QWidget* field, int pairs) {
  grid_->addWidget(field, row, 2 * pair + 1, 1, 2 * pairs - 1);
  grid_->setColumnStretch(2 * pair + 1, 1);
}

void Fields::add(int row, int pair, const Control& caption, QLayout* field, int pairs) {
  addCaption(row, pair, faces_.widget(caption));
  grid_->addLayout(field, row, 2 * pair + 1, 1, 2 * pairs - 1);
  grid_->setColumnStretch(2 * pair + 1, 1);
}

void Fields::add(int row, int pair, const Control& caption, const Control& field, int pairs) {
  addCaption(row, pair, faces_.widget(caption));
  addField(row, pair, faces_.widget(field), pairs);
  nameBy(faces_.label(caption), faces_.face(field));
}

QLabel* Fields::add(int row, int pair, const QString& caption, const Control& field, int pairs) {
  auto* label = new QLabel(caption);
  label->setTextFormat(Qt::PlainText);
  addCaption(row, pair, label);
  QWidget* widget = faces_.widget(field);
  addField(row, pair, widget, pairs);
  nameBy(*label, faces_.face(field));
  new CaptionFollows(label, widget);
  return label;
}

void Fields::addCovered(int row, int pair, const Control& caption, const Control& covered,
                        const Control& cover, int pairs) {
  add(row, pair, caption, covered, pairs);
  addField(row, pair, faces_.widget(cover), pairs);
  nameBy(faces_.label(caption), faces_.face(cover));
}

QGroupBox* makeGroup(std::string_view heading) {
  auto* group = new GroupBox(fromText(heading));
  group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  return group;
}

void nameBy(QLabel& label, const Face& field) {
  QWidget* widget = field.focusWidget();
  label.setBuddy(widget);
  if (widget->accessibleName().isEmpty()) widget->setAccessibleName(label.text());
  // What is typed into a list is heard as a field of its own.
  auto* typed = widget->findChild<QLineEdit*>();
  if (typed != nullptr) typed->setAccessibleName(label.text());
}

void makeBold(QWidget& words) {
  QFont bold = words.font();
  bold.setBold(true);
  words.setFont(bold);
}

void keepRoom(QWidget& field, int characters) {
  const int wanted = field.fontMetrics().averageCharWidth() * characters;
  field.setMinimumWidth(std::min(wanted, roomFor(field).width() * 2 / 5));
}

void keepRoom(QWidget& list, int characters, int lines) {
  const QFontMetrics metrics = list.fontMetrics();
  const QSize room = roomFor(list);
  list.setMinimumSize(QSize(metrics.averageCharWidth() * characters, metrics.height() * lines)
                          .boundedTo({room.width() * 5 / 6, room.height() / 2}));
}

QHBoxLayout* makeRow(std::initializer_list<QWidget*> widgets) {
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  for (QWidget* widget : widgets) row->addWidget(widget);
  return row;
}

void addNotes(QBoxLayout& rows, FormFace& faces, std::initializer_list<const Control*> labels) {
  for (const Control* label : labels) {
    auto* shown = static_cast<QLabel*>(faces.widget(*label));
    shown->setWordWrap(true);
    rows.addWidget(shown);
  }
}

QHBoxLayout* makeButtonRow(FormFace& faces, const Control& accept, const Control& close) {
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addStretch(1);
  for (const Control* button : {&accept, &close}) {
    QWidget* widget = faces.widget(*button);
    // The longest caption that comes in place of another doesn't move the row.
    const QString longest = fromText(captions::confirm).remove('&');
    widget->setMinimumWidth(widget->fontMetrics().horizontalAdvance(longest) + 32);
    row->addWidget(widget);
  }
  return row;
}

}  // namespace awizo::desktop
