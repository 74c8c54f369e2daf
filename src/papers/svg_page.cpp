#include "papers/svg_page.h"

#include <cmath>
#include <cstdint>

#include "platform/text.h"

namespace awizo::papers {
namespace {

/// Verdana's characters are nearly as wide; bars have sharp edges on a screen too.
constexpr std::string_view looks =
    " font-family=\"'DejaVu Sans', Verdana, sans-serif\""
    " xml:space=\"preserve\" shape-rendering=\"crispEdges\"";

/// Millimetres with up to four decimals.
std::string lengthText(double length) {
  constexpr std::int64_t parts = 10000;
  const std::int64_t all = std::llround(std::abs(length) * parts);
  std::string fraction = std::to_string(parts + all % parts).substr(1);
  fraction.erase(fraction.find_last_not_of('0') + 1);
  return joined({length < 0 && all > 0 ? "-" : "", std::to_string(all / parts),
                 fraction.empty() ? "" : ".", fraction});
}

std::string attribute(std::string_view name, double length) {
  return joined({" ", name, "=\"", lengthText(length), "\""});
}

std::string escaped(std::string_view text) {
  return replaceAll(replaceAll(replaceAll(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

std::string rectangleText(const Rectangle& rectangle) {
  const std::string grey = std::to_string(std::lround(255 * (1 - rectangle.darkness)));
  return joined(
      {"<rect", attribute("x", rectangle.x), attribute("y", rectangle.y),
       attribute("width", rectangle.width), attribute("height", rectangle.height),
       rectangle.darkness == 1 ? "" : joined({" fill=\"rgb(", grey, ",", grey, ",", grey, ")\""}),
       "/>"});
}

std::string runText(const TextRun& run, const TextMeasure& measure) {
  return joined({"<text", attribute("x", run.x), attribute("y", run.baseline),
                 attribute("font-size", run.font.size),
                 run.font.bold ? " font-weight=\"bold\"" : "",
                 attribute("textLength", measure.width(run.text, run.font)),
                 " lengthAdjust=\"spacingAndGlyphs\">", escaped(run.text), "</text>"});
}

}  // namespace

std::string svgOf(const Page& page, const TextMeasure& measure) {
  const std::string width = lengthText(page.size.width);
  const std::string height = lengthText(page.size.height);
  std::string svg =
      joined({"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"", width, "mm\" height=\"", height,
              "mm\" viewBox=\"0 0 ", width, " ", height, "\"", looks, ">"});
  for (const Rectangle& rectangle : page.rectangles) svg += rectangleText(rectangle);
  for (const TextRun& run : page.texts) {
    if (!run.text.empty()) svg += runText(run, measure);
  }
  return svg + "</svg>";
}

}  // namespace awizo::papers
