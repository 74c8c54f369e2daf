#include "hosts/desktop/program/guide.h"

#include <QAbstractTextDocumentLayout>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <algorithm>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/text.h"
#include "hosts/desktop/layouts/wrapping.h"

namespace awizo::desktop {
namespace {

constexpr int chapterLevel = 2;
constexpr auto guideName = "guide";

/// The guide's text, its pictures no wider than the window.
class GuideText : public QTextBrowser {
 public:
  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return loaded;
    const QImage picture = loaded.typeId() == QMetaType::QByteArray
                               ? QImage::fromData(loaded.toByteArray())
                               : loaded.value<QImage>();
    const int room = viewport()->width() - 2 * static_cast<int>(document()->documentMargin());
    if (picture.isNull() || picture.width() <= room) return loaded;
    return picture.scaledToWidth(room, Qt::SmoothTransformation);
  }

  /// The headings of its chapters.
  QStringList chapters() const {
    QStringList headings;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
      if (block.blockFormat().headingLevel() == chapterLevel) headings << block.text();
    }
    return headings;
  }

  void goTo(const QString& chapter) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
      if (block.blockFormat().headingLevel() != chapterLevel || block.text() != chapter) continue;
      const QRectF place = document()->documentLayout()->blockBoundingRect(block);
      verticalScrollBar()->setValue(static_cast<int>(place.top()));
      return;
    }
  }
};

/// On the right of the screen, where it covers least of the window that it tells about. Large
/// letters need more of the screen.
void placeBeside(QWidget& guide, const QWidget& owner) {
  const QRect screen = owner.screen()->availableGeometry();
  const QSize room = roomFor(owner);
  const int letters = guide.fontMetrics().averageCharWidth() * 60;
  guide.resize(std::min(std::max(screen.width() * 9 / 20, letters), room.width()),
               screen.height() * 9 / 10);
  const int frame = screen.width() - room.width();
  guide.move(screen.right() - guide.width() - frame,
             screen.top() + (screen.height() - guide.height()) / 2);
}

/// The one that is open beside the window, or null.
QWidget* openedGuide(const QWidget& owner) {
  return owner.findChild<QWidget*>(guideName, Qt::FindDirectChildrenOnly);
}

void show(QWidget& guide, const QString& chapter) {
  static_cast<GuideText*>(guide.findChild<QTextBrowser*>())->goTo(chapter);
  guide.raise();
  guide.activateWindow();
}

}  // namespace

void openGuide(QWidget& owner, const QString& chapter) {
  if (QWidget* guide = openedGuide(owner)) return show(*guide, chapter);
  auto* window = new QDialog(&owner);
  window->setObjectName(guideName);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(fromText(words::guideTitle));
  auto* contents = new QListWidget;
  contents->setAccessibleName(fromText(words::guideContents));
  contents->setWordWrap(true);
  contents->setTextElideMode(Qt::ElideNone);
  contents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* text = new GuideText;
  // The room for pictures is known from the start.
  text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  auto* columns = new QHBoxLayout(window);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(0);
  columns->addWidget(contents, 1);
  columns->addWidget(text, 3);
  placeBeside(*window, owner);
  window->show();
  text->setOpenExternalLinks(true);
  QFile file(AWIZO_GUIDE);
  if (file.open(QIODevice::ReadOnly)) {
    text->setSearchPaths({QFileInfo(file).absolutePath()});
    text->setMarkdown(QString::fromUtf8(file.readAll()));
  } else {
    text->setPlainText(fromText(words::noGuide));
  }
  contents->addItems(text->chapters());
  QObject::connect(contents, &QListWidget::currentTextChanged, text,
                   [text](const QString& heading) { text->goTo(heading); });
  text->setFocus();
  text->goTo(chapter);
}

}  // namespace awizo::desktop
