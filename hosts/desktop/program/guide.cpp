#include "hosts/desktop/program/guide.h"

#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {

void openGuide(QWidget& owner) {
  auto* window = new QDialog(&owner);
  window->setObjectName("guide");
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(fromText(words::guideTitle));
  auto* text = new QTextBrowser;
  text->setOpenExternalLinks(true);
  QFile file(AWIZO_GUIDE);
  if (file.open(QIODevice::ReadOnly)) {
    text->setSearchPaths({QFileInfo(file).absolutePath()});
    text->setMarkdown(QString::fromUtf8(file.readAll()));
  } else {
    text->setPlainText(fromText(words::noGuide));
  }
  auto* rows = new QVBoxLayout(window);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(text);
  window->resize(owner.size() * 0.9);
  window->show();
}

}  // namespace awizo::desktop
