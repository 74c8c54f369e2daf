#include "hosts/desktop/screen/message_box.h"

#include <QGridLayout>
#include <QPushButton>
#include <QStyle>
#include <algorithm>

#include "desk/box_advice.h"
#include "desk/layout_words.h"
#include "hosts/desktop/faces/icons.h"
#include "hosts/desktop/faces/text.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "platform/forms/face_words.h"

namespace awizo::desktop {
namespace {

constexpr int longestText = 5000;

/// The icon is the program's own: a system without an icon theme has none.
void showIcon(QMessageBox& window, BoxIcon icon) {
  if (icon == BoxIcon::none) return;
  const int side = window.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &window);
  window.setIconPixmap(
      iconNamed(fromText(nameOf(icon))).pixmap(QSize(side, side), window.devicePixelRatioF()));
}

/// Qt makes a box as wide as its text, which may be shorter than the title.
void makeRoomForTitle(QMessageBox& window) {
  const QFontMetrics metrics = window.fontMetrics();
  // The window frame's own buttons stand beside the title, in a font that may be bold.
  const int wanted = metrics.horizontalAdvance(window.windowTitle()) * 5 / 4 + metrics.height() * 6;
  const int width = std::min(wanted, roomFor(window).width() - 4 * metrics.height());
  auto* grid = static_cast<QGridLayout*>(window.layout());
  grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

QString boxText(std::string_view text) {
  QString lines = fromText(text);
  lines.replace("\r\n", "\n").replace('\r', '\n');
  if (lines.size() > longestText) lines = lines.left(longestText) + u'…';
  return lines;
}

QuestionBox::QuestionBox(const awizo::Question& question, QWidget* over)
    : QMessageBox(QMessageBox::NoIcon, fromText(words::boxTitle), boxText(question.text),
                  QMessageBox::NoButton, over),
      harmless_(question.harmless) {
  showIcon(*this, question.icon);
  setTextFormat(Qt::PlainText);
  for (const Choice choice : question.choices) {
    // Buttons of one role keep the order in which they came.
    QPushButton* button = addButton(fromText(wordsOf(choice)), QMessageBox::ActionRole);
    choices_[button] = choice;
    if (choice != harmless_) continue;
    setDefaultButton(button);
    setEscapeButton(button);
  }
  makeRoomForTitle(*this);
}

Choice QuestionBox::choice() const {
  const auto chosen = choices_.find(clickedButton());
  return chosen == choices_.end() ? harmless_ : chosen->second;
}

Answer askUser(const MessageBox& box, QWidget* over) {
  QMessageBox window(QMessageBox::NoIcon, fromText(box.title), boxText(box.text),
                     QMessageBox::NoButton, over);
  showIcon(window, box.icon);
  window.setTextFormat(Qt::PlainText);
  window.setInformativeText(fromText(adviceOn(box)));
  makeRoomForTitle(window);
  if (box.buttons == BoxButtons::ok) {
    QPushButton* ok = window.addButton(fromText(words::ok), QMessageBox::AcceptRole);
    window.setDefaultButton(ok);
    window.setEscapeButton(ok);
    window.exec();
    return Answer::ok;
  }
  QPushButton* yes = window.addButton(fromText(words::yes), QMessageBox::YesRole);
  QPushButton* no = window.addButton(fromText(words::no), QMessageBox::NoRole);
  window.setDefaultButton(yes);
  window.setEscapeButton(no);
  window.exec();
  return window.clickedButton() == yes ? Answer::yes : Answer::no;
}

}  // namespace awizo::desktop
