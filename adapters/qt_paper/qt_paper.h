#pragma once

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <string>
#include <unordered_map>

#include "platform/painting.h"

namespace awizo {

/// Widths of texts in the font that pages are painted with. Qt must have been started.
class QtTextMeasure final : public papers::TextMeasure {
 public:
  QtTextMeasure();
  double width(const std::string& text, const papers::Font& font) const override;

 private:
  /// Widths in the measuring size: layouts ask for the same texts many times, in many sizes.
  using Known = std::unordered_map<std::string, double>;

  static double measured(const QFontMetricsF& metrics, Known& known, const std::string& text);

  QFontMetricsF plain_;
  QFontMetricsF bold_;
  mutable Known knownPlain_;
  mutable Known knownBold_;
};

/// Paints the page with so many of the device's pixels on a millimetre, from the origin.
void paintPage(QPainter& painter, const papers::Page& page, double pixelsPerMillimetre);

/// A file with these pages, each on paper of its size. Error 5 where it can't be made.
std::string pdfOf(const papers::Pages& pages, const std::string& title);

/// The same onto a device that can change its paper, such as a printer; answers whether all went.
/// Nothing does onto other paper.
bool printPages(const papers::Pages& pages, QPagedPaintDevice& device);

}  // namespace awizo
