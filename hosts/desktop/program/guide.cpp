#include "hosts/desktop/program/guide.h"

#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace awizo::desktop {

void openGuide(QWidget& owner) {
  auto* window = new QDialog(&owner);
  window->setObjectName("guide");
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle("Руководство пользователя");
  auto* text = new QTextBrowser;
  text->setOpenExternalLinks(true);
  text->setPlainText("Руководство не установлено.");
  for (const QString& path : QString(AWIZO_GUIDE_PATHS).split(':')) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) continue;
    text->setSearchPaths({QFileInfo(path).absolutePath()});
    text->setMarkdown(QString::fromUtf8(file.readAll()));
    break;
  }
  auto* rows = new QVBoxLayout(window);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(text);
  window->resize(owner.size() * 0.9);
  window->show();
}

}  // namespace awizo::desktop
