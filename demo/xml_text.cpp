#include "demo/xml_text.h"

#include <libxml/parser.h>
#include <libxml/xpath.h>

#include <limits>

namespace awizo::demo {

namespace {

std::string trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

}  // namespace

XmlDocument::XmlDocument(std::string_view text) {
  if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) throw XmlError{};
  const std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> parser(xmlNewParserCtxt(),
                                                                            &xmlFreeParserCtxt);
  document_.reset(xmlCtxtReadMemory(parser.get(), text.data(), static_cast<int>(text.size()),
                                    nullptr, nullptr,
                                    XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
  if (document_) return;
  const xmlError* error = xmlCtxtGetLastError(parser.get());
  throw XmlError{error == nullptr ? 0 : error->line};
}

XmlDocument::~XmlDocument() = default;

void XmlDocument::Free::operator()(_xmlDoc* document) const { xmlFreeDoc(document); }

std::optional<std::string> XmlDocument::textAt(const char* path) const {
  const std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> context(
      xmlXPathNewContext(document_.get()), &xmlXPathFreeContext);
  const std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> found(
      xmlXPathEvalExpression(reinterpret_cast<const xmlChar*>(path), context.get()),
      &xmlXPathFreeObject);
  if (!found || xmlXPathNodeSetIsEmpty(found->nodesetval)) return std::nullopt;
  const std::unique_ptr<xmlChar, void (*)(void*)> content(
      xmlNodeGetContent(found->nodesetval->nodeTab[0]), xmlFree);
  return content ? trimmed(reinterpret_cast<const char*>(content.get())) : std::string{};
}

std::string escapedForXml(std::string_view text) {
  std::string result;
  for (const char character : text) {
    switch (character) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      default:
        result += character;
    }
  }
  return result;
}

std::string_view withoutDeclaration(std::string_view text) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  if (!text.starts_with("<?xml ")) return text;
  const auto end = text.find("?>");
  return end == std::string_view::npos ? text : text.substr(end + 2);
}

}  // namespace awizo::demo
