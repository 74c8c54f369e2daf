#include "hosts/desktop/screen/message_box.h"

#include <QPushButton>

#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {
namespace {

constexpr int longestText = 5000;

QMessageBox::Icon iconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::critical:
      return QMessageBox::Critical;
    case BoxIcon::question:
      return QMessageBox::Question;
    case BoxIcon::exclamation:
      return QMessageBox::Warning;
    case BoxIcon::information:
      return QMessageBox::Information;
    case BoxIcon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

QString boxText(std::string_view text) {
  QString lines = fromText(text);
  lines.replace("\r\n", "\n").replace('\r', '\n');
  if (lines.size() > longestText) lines = lines.left(longestText) + u'…';
  return lines;
}

Answer askUser(const MessageBox& box, QWidget* over) {
  QMessageBox window(iconOf(box.icon), fromText(box.title), boxText(box.text),
                     QMessageBox::NoButton, over);
  window.setTextFormat(Qt::PlainText);
  if (box.buttons == BoxButtons::ok) {
    QPushButton* ok = window.addButton("ОК", QMessageBox::AcceptRole);
    window.setDefaultButton(ok);
    window.setEscapeButton(ok);
    window.exec();
    return Answer::ok;
  }
  QPushButton* yes = window.addButton("&Да", QMessageBox::YesRole);
  QPushButton* no = window.addButton("&Нет", QMessageBox::NoRole);
  window.setDefaultButton(yes);
  window.setEscapeButton(no);
  window.exec();
  return window.clickedButton() == yes ? Answer::yes : Answer::no;
}

}  // namespace awizo::desktop
