#include "adapters/qt_paper/qt_paper.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>
#include <cmath>

#include "platform/run_time_error.h"

namespace awizo {
namespace {

constexpr double inch = 25.4;
/// Files are written in pixels of this size.
constexpr int dotsPerInch = 1200;
/// Texts are measured and painted in this size, and scaled: fonts have whole sizes only. Without
/// hinting a text's width grows with its size.
constexpr int fontPixels = 500;

QFont fontOf(bool bold) {
  QFont font("DejaVu Sans");
  font.setStyleHint(QFont::SansSerif);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setPixelSize(fontPixels);
  font.setBold(bold);
  // A text is as wide as its characters, so that papers are the same in a window and in a page.
  font.setKerning(false);
  return font;
}

QPageLayout layoutOf(const papers::PageSize& size) {
  const QPageSize paper(QSizeF(size.width, size.height), QPageSize::Millimeter);
  QPageLayout layout(paper, QPageLayout::Portrait, QMarginsF());
  // A page begins at the sheet's edge, not within the margins of the printer.
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

/// Whether the device prints on such paper. On other paper bars would get another width, or be cut
/// off.
bool takesPaper(QPagedPaintDevice& device, const papers::PageSize& size) {
  if (device.setPageLayout(layoutOf(size))) return true;
  // It may have its own measures of the same paper, in whole points.
  constexpr double sameWithin = 1;
  const QPageLayout layout = device.pageLayout();
  const QSizeF paper = layout.fullRect(QPageLayout::Millimeter).size();
  return layout.mode() == QPageLayout::FullPageMode &&
         std::abs(paper.width() - size.width) <= sameWithin &&
         std::abs(paper.height() - size.height) <= sameWithin;
}

}  // namespace

QtTextMeasure::QtTextMeasure() : plain_(fontOf(false)), bold_(fontOf(true)) {}

double QtTextMeasure::measured(const QFontMetricsF& metrics, Known& known,
                               const std::string& text) {
  constexpr std::size_t most = 20'000;
  if (known.size() >= most) known.clear();
  const auto [entry, isNew] = known.try_emplace(text);
  if (isNew) entry->second = metrics.horizontalAdvance(QString::fromStdString(text));
  return entry->second;
}

double QtTextMeasure::width(const std::string& text, const papers::Font& font) const {
  const double pixels =
      font.bold ? measured(bold_, knownBold_, text) : measured(plain_, knownPlain_, text);
  return pixels * font.size / fontPixels;
}

void paintPage(QPainter& painter, const papers::Page& page, double scale) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (const papers::Rectangle& rectangle : page.rectangles) {
    const int grey = static_cast<int>(std::lround(255 * (1 - rectangle.darkness)));
    painter.fillRect(QRectF(rectangle.x * scale, rectangle.y * scale, rectangle.width * scale,
                            rectangle.height * scale),
                     QColor(grey, grey, grey));
  }
  painter.setPen(Qt::black);
  for (const papers::TextRun& run : page.texts) {
    painter.save();
    painter.translate(run.x * scale, run.baseline * scale);
    const double size = run.font.size * scale / fontPixels;
    painter.scale(size, size);
    painter.setFont(fontOf(run.font.bold));
    painter.drawText(QPointF(), QString::fromStdString(run.text));
    painter.restore();
  }
  painter.restore();
}

bool printPages(const papers::Pages& pages, QPagedPaintDevice& device) {
  QPainter painter;
  for (const papers::Page& page : pages) {
    const bool isFirst = &page == pages.data();
    if (!takesPaper(device, page.size)) return false;
    if (isFirst ? !painter.begin(&device) : !device.newPage()) return false;
    paintPage(painter, page, device.logicalDpiX() / inch);
  }
  return painter.end();
}

std::string pdfOf(const papers::Pages& pages, const std::string& title) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(dotsPerInch);
    writer.setTitle(QString::fromStdString(title));
    writer.setCreator("awizo");
    if (pages.empty() || !printPages(pages, writer)) throw errors::invalidProcedureCall();
  }
  return buffer.data().toStdString();
}

}  // namespace awizo
