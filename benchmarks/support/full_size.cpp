#include "benchmarks/support/full_size.h"

#include <libxml/parser.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace awizo::benchmarks {
namespace {

constexpr std::array<std::string_view, 24> words{
    "молоко", "хлеб",   "масло", "сыр",     "творог",  "сметана", "крупа",   "гречка",
    "рис",    "сахар",  "чай",   "кофе",    "печенье", "конфеты", "шоколад", "варенье",
    "сок",    "яблоко", "груша", "морковь", "свёкла",  "лук",     "капуста", "картофель"};

struct Line {
  std::string ean, name, supplierCode, buyerCode;
};

std::string padded(int number, int width) {
  std::string digits = std::to_string(number);
  return std::string(static_cast<std::size_t>(width) - digits.size(), '0') + digits;
}

int characters(std::string_view text) {
  return static_cast<int>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

/// 20 to 60 characters; the number at the end keeps names apart.
std::string productName(int number, std::mt19937& random) {
  const int wanted = 20 + static_cast<int>(random() % 34);
  std::string name(words[random() % words.size()]);
  while (characters(name) < wanted) {
    name += ' ';
    name += words[random() % words.size()];
  }
  return name + " " + padded(number, 5);
}

std::vector<Line> makeLines(int count, LineOrder order, Repeats repeats) {
  std::mt19937 random(20261121);
  std::vector<Line> lines(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    lines[static_cast<std::size_t>(i)] = {catalogueEAN(i), productName(i, random),
                                          "S-" + padded(i, 6), "B-" + padded(i, 6)};
  }
  for (std::size_t i = 1; i < lines.size(); ++i) {
    if (repeats == Repeats::noBuyerCodes) lines[i].buyerCode.clear();
    if (repeats == Repeats::namesTwice && i % 2 == 1) lines[i].name = lines[i - 1].name;
    if (repeats == Repeats::few && i % 40 == 10) lines[i].name = lines[i - 1].name;
    if (repeats == Repeats::few && i % 40 == 30) lines[i].ean = lines[i - 1].ean;
  }
  if (repeats == Repeats::noBuyerCodes && !lines.empty()) lines[0].buyerCode.clear();
  if (order == LineOrder::random) {
    std::shuffle(lines.begin(), lines.end(), random);
    return lines;
  }
  // EANs and codes ascend already; the names are handed out again in their order.
  std::vector<std::string> names;
  for (const Line& line : lines) names.push_back(line.name);
  std::sort(names.begin(), names.end());
  for (std::size_t i = 0; i < lines.size(); ++i) lines[i].name = names[i];
  if (order == LineOrder::reversed) std::reverse(lines.begin(), lines.end());
  return lines;
}

void element(std::string& text, std::string_view name, std::string_view value) {
  text.append("<").append(name).append(">").append(value);
  text.append("</").append(name).append(">");
}

constexpr int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_COMPACT;

xmlDocPtr required(xmlDocPtr document) {
  if (document == nullptr) {
    std::fputs("The document isn't well-formed.\n", stderr);
    std::abort();
  }
  return document;
}

xmlDocPtr parsed(std::string_view text, int moreOptions = 0) {
  return required(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                options | moreOptions));
}

}  // namespace

std::string catalogueEAN(int line) { return "460" + padded(1000000 + line * 7, 10); }

std::string catalogue(int lines, LineOrder order, Repeats repeats) {
  std::string text = "<Document-ProductCatalogue><ProductCatalogue-Lines>\n";
  std::mt19937 random(1147);
  for (const Line& line : makeLines(lines, order, repeats)) {
    text += "<Line><Line-Item>";
    element(text, "EAN", line.ean);
    element(text, "ItemDescription", line.name);
    if (!line.supplierCode.empty()) element(text, "SupplierItemCode", line.supplierCode);
    if (!line.buyerCode.empty()) element(text, "BuyerItemCode", line.buyerCode);
    element(text, "UnitOfMeasure", "PCE");
    element(text, "TaxRate", random() % 2 == 0 ? "10" : "18");
    element(text, "UnitNetPrice", std::to_string(random() % 9000 + 100) + ".50");
    element(text, "TaxCategoryCode", "S");
    text += "<PackDetails>";
    element(text, "UnitPacksize", std::to_string(random() % 24 + 1));
    element(text, "Weight", "0." + padded(static_cast<int>(random() % 999), 3));
    text += "</PackDetails><ProductLifespan>";
    element(text, "Period", std::to_string(random() % 360 + 1));
    element(text, "PeriodFormat", "804");
    text += "</ProductLifespan></Line-Item></Line>\n";
  }
  return text + "</ProductCatalogue-Lines></Document-ProductCatalogue>";
}

std::string catalogueReply(std::string_view content) {
  return std::string("<document-response><status>CHANGED</status><document-content>")
      .append(content)
      .append("</document-content></document-response>");
}

std::string order(int lines, int catalogueLines) {
  std::string text =
      "<Document-Order><Order-Header>"
      "<OrderNumber>ORD-1</OrderNumber><OrderDate>2026-11-20</OrderDate>"
      "<ExpectedDeliveryDate>2026-11-25</ExpectedDeliveryDate><Currency>RUR</Currency>"
      "</Order-Header><Order-Parties><DeliveryPoint><ILN>4600000000017</ILN></DeliveryPoint>"
      "</Order-Parties><Order-Lines>\n";
  for (int i = 0; i < lines; ++i) {
    text += "<Line><Line-Item>";
    element(text, "LineNumber", std::to_string(i + 1));
    element(text, "EAN",
            catalogueEAN(static_cast<int>(static_cast<long long>(i) * catalogueLines / lines)));
    element(text, "OrderedQuantity", std::to_string(i % 90 + 1));
    text += "</Line-Item></Line>\n";
  }
  return text + "</Order-Lines></Document-Order>";
}

std::string orderReply(std::string_view content) {
  return std::string("<receive-document-response><document-content>")
      .append(content)
      .append("</document-content></receive-document-response>");
}

std::string laidOut(std::string document, Layout layout) {
  if (layout == Layout::compact) return document;
  xmlDocPtr tree = parsed(document, XML_PARSE_NOBLANKS);
  xmlBufferPtr buffer = xmlBufferCreate();
  xmlNodeDump(buffer, tree, xmlDocGetRootElement(tree), 0, 1);
  const auto* text = reinterpret_cast<const char*>(xmlBufferContent(buffer));
  document.assign(text, static_cast<std::size_t>(xmlBufferLength(buffer)));
  xmlBufferFree(buffer);
  xmlFreeDoc(tree);
  return document;
}

void parseBare(std::string_view text) { xmlFreeDoc(parsed(text)); }

void parseBareFile(const std::string& path) {
  xmlFreeDoc(required(xmlReadFile(path.c_str(), nullptr, options)));
}

void parseAndSerialiseBare(std::string_view text) {
  xmlDocPtr document = parsed(text);
  xmlChar* bytes = nullptr;
  int size = 0;
  xmlDocDumpMemoryEnc(document, &bytes, &size, "UTF-8");
  xmlFree(bytes);
  xmlFreeDoc(document);
}

}  // namespace awizo::benchmarks
