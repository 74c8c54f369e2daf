#include "papers/label_layout.h"

#include <algorithm>
#include <cmath>

#include "papers/text_box.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo::papers {
namespace {

constexpr double labelMargin = 5;
constexpr double partGap = 2.5;    ///< between the parts of a label
constexpr double readableGap = 1;  ///< between bars and their text
constexpr double readableDigits = 3;

/// Measures of one size of labels.
struct Scale {
  double numberDigits;  ///< height of the package's number in the text part
  double largestText;
  double comfortableText;  ///< smaller than this only where one product wouldn't have room
  double smallestText;
};

Scale scaleOf(const PageSize& size) {
  if (size.width >= a5.width) return {7, 5.4, 3.8, 2.4};
  return {5, 4.2, 3.2, 2};
}

/// How the text part is written: attempts are made until one has room.
struct Manner {
  double size = 0;
  std::size_t products = 0;   ///< shown of them
  std::size_t factLines = 0;  ///< most lines of one fact or name; 0 for as many as it takes
};

class LabelLayout {
 public:
  LabelLayout(const Label& label, const PageSize& size, double module, const TextMeasure& measure,
              const SymbolEncoder& encoder)
      : label_(label),
        scale_(scaleOf(size)),
        module_(module),
        measure_(measure),
        encoder_(encoder) {
    page_.size = size;
    width_ = size.width - 2 * labelMargin;
  }

  Page make() {
    double bottom = addSymbol(label_.package, page_.size.height - labelMargin);
    if (fits(label_.content)) bottom = addSymbol(label_.content, bottom - partGap);
    addTextPart(addNumber(bottom - partGap));
    return std::move(page_);
  }

 private:
  double symbolWidth(std::size_t modules) const {
    return static_cast<double>(modules + 2 * quietModules) * module_;
  }

  bool fits(const Gs1Elements& elements) const {
    if (elements.empty()) return false;
    const double width = symbolWidth(encoder_.gs1Symbol(bracketed(elements)).size());
    return width <= std::min(page_.size.width, longestSymbol);
  }

  /// Puts the symbol and its text above `bottom`; returns where it begins.
  double addSymbol(const Gs1Elements& elements, double bottom) {
    const std::vector<bool> modules = encoder_.gs1Symbol(bracketed(elements));
    const double width = symbolWidth(modules.size());
    if (width > std::min(page_.size.width, longestSymbol)) throw errors::invalidProcedureCall();
    const Font font = fontOfDigits(readableDigits, false);
    const std::string text = readableText(elements);
    page_.texts.push_back(
        {(page_.size.width - measure_.width(text, font)) / 2, bottom, text, font});
    const double top = bottom - readableDigits - readableGap - barHeight;
    // Bars begin on a whole module, so that all their edges are whole dots from the page's edge.
    const double left = std::floor((page_.size.width - width) / 2 / module_) * module_;
    addBars(modules, left + quietModules * module_, top);
    return top;
  }

  void addBars(const std::vector<bool>& modules, double left, double top) {
    for (std::size_t i = 0; i < modules.size();) {
      std::size_t end = i;
      while (end < modules.size() && modules[end] == modules[i]) ++end;
      if (modules[i]) {
        page_.rectangles.push_back({left + static_cast<double>(i) * module_, top,
                                    static_cast<double>(end - i) * module_, barHeight});
      }
      i = end;
    }
  }

  /// The package's number for people, under its title; returns where it begins.
  double addNumber(double bottom) {
    const Font digits = fontOfDigits(scale_.numberDigits, true);
    const Font title{scale_.comfortableText, false};
    const std::string& number = label_.serialNumber;
    page_.texts.push_back({labelMargin, bottom, number, digits});
    const double titleLine = bottom - scale_.numberDigits - 1.6;
    page_.texts.push_back({labelMargin, titleLine, "SSCC", title});
    const double top = titleLine - ascent(title) - 1;
    addRule(top);
    return top;
  }

  void addRule(double y) { page_.rectangles.push_back({labelMargin, y, width_, 0.2}); }

  void addTextPart(double bottom) {
    const double room = bottom - labelMargin - 1;
    for (const Manner& manner : manners()) {
      Page tried = page_;
      std::swap(tried, page_);
      if (writeText(manner) <= room) return;
      std::swap(tried, page_);
    }
    throw errors::invalidProcedureCall();
  }

  /// From the best to one for which there is always room.
  std::vector<Manner> manners() const {
    constexpr double step = 0.2;
    std::vector<Manner> manners;
    const std::size_t all = label_.products.size();
    if (all == label_.productCount) {
      for (double size = scale_.largestText; size > scale_.comfortableText; size -= step) {
        manners.push_back({size, all, 0});
      }
    }
    for (std::size_t products = all; products > 0; --products) {
      manners.push_back({scale_.comfortableText, products, 0});
    }
    for (double size = scale_.comfortableText; size > scale_.smallestText; size -= step) {
      manners.push_back({size, std::min<std::size_t>(all, 1), 0});
    }
    for (const std::size_t lines : {3U, 2U, 1U}) {
      manners.push_back({scale_.smallestText, std::min<std::size_t>(all, 1), lines});
    }
    return manners;
  }

  /// Writes facts and products from the top of the label; returns the height.
  double writeText(const Manner& manner) {
    const Font font{manner.size, false};
    const Font caption{manner.size, true};
    double column = 0;
    for (const auto& [words, text] : label_.facts) {
      column = std::max(column, measure_.width(words, caption));
    }
    column += manner.size * 0.6;
    double y = labelMargin;
    for (const auto& [words, text] : label_.facts) {
      page_.texts.push_back({labelMargin, y + ascent(font), words, caption});
      y = write(text, font, column, manner.factLines, y);
    }
    y += 0.8;
    addRule(y);
    y = writeProducts(manner, y + 0.8);
    return y - labelMargin;
  }

  double writeProducts(const Manner& manner, double y) {
    const Font font{manner.size, false};
    const Font bold{manner.size, true};
    const std::size_t all = label_.productCount;
    if (all == 0) return write("Содержимое не указано", bold, 0, 0, y);
    if (all > 1) {
      y = write("СМЕШАННЫЙ, наименований: " + std::to_string(all), bold, 0, 0, y);
    }
    for (std::size_t i = 0; i < manner.products; ++i) {
      const LabelProduct& product = label_.products[i];
      y = write(product.name, bold, 0, manner.factLines, y);
      y = write(product.facts, font, 0, manner.factLines, y);
    }
    if (manner.products < all) {
      y = write("и ещё " + std::to_string(all - manner.products) + ", см. упаковочный лист", font,
                0, 0, y);
    }
    return y;
  }

  /// Returns where the text ends.
  double write(const std::string& text, const Font& font, double indent, std::size_t mostLines,
               double y) {
    const double width = width_ - indent;
    std::vector<std::string> lines = wrapped(measure_, text, font, width);
    if (mostLines > 0) lines = shortened(measure_, std::move(lines), mostLines, font, width);
    for (const std::string& line : lines) {
      page_.texts.push_back({labelMargin + indent, y + ascent(font), line, font});
      y += lineHeight(font);
    }
    return y;
  }

  const Label& label_;
  const Scale scale_;
  const double module_;
  const TextMeasure& measure_;
  const SymbolEncoder& encoder_;
  Page page_;
  double width_ = 0;
};

}  // namespace

Pages labelPages(const std::vector<Label>& labels, const LabelOptions& options,
                 const TextMeasure& measure, const SymbolEncoder& encoder) {
  const double module = moduleWidth(options.dotsPerInch);
  if (module > widestModule) throw errors::invalidProcedureCall();
  Pages pages;
  for (const Label& label : labels) {
    std::vector<Gs1Elements> symbols{label.package};
    if (!label.content.empty()) symbols.push_back(label.content);
    if (!labelRefusal(symbols).empty()) throw errors::invalidProcedureCall();
    const PageSize size = options.size.value_or(label.isPallet ? a5 : a6);
    const Page page = LabelLayout(label, size, module, measure, encoder).make();
    const int copies = options.copies.value_or(label.isPallet ? 2 : 1);
    pages.insert(pages.end(), static_cast<std::size_t>(copies), page);
  }
  return pages;
}

}  // namespace awizo::papers
