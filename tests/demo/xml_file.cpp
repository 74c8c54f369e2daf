#include "demo/xml_file.h"

#include <libxml/parser.h>
#include <libxml/xpath.h>

#include <stdexcept>

#include "support/files/files.h"

namespace awizo::demo {

namespace {

constexpr int quiet = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;

}  // namespace

XmlFile::XmlFile(_xmlDoc* document) : document_(document, &xmlFreeDoc) {
  if (document == nullptr) throw std::runtime_error("not XML");
}

XmlFile XmlFile::read(const std::string& name) {
  return XmlFile(xmlReadFile((test::projectFolder() / name).c_str(), nullptr, quiet));
}

XmlFile XmlFile::parse(const std::string& text) {
  return XmlFile(
      xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, quiet));
}

std::vector<std::string> XmlFile::texts(const std::string& path) const {
  const std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> context(
      xmlXPathNewContext(document_.get()), &xmlXPathFreeContext);
  const std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> found(
      xmlXPathEvalExpression(reinterpret_cast<const xmlChar*>(path.c_str()), context.get()),
      &xmlXPathFreeObject);
  if (!found) throw std::invalid_argument("not a path: " + path);
  std::vector<std::string> result;
  for (int i = 0; found->nodesetval != nullptr && i < found->nodesetval->nodeNr; ++i) {
    const std::unique_ptr<xmlChar, void (*)(void*)> content(
        xmlNodeGetContent(found->nodesetval->nodeTab[i]), xmlFree);
    result.emplace_back(reinterpret_cast<const char*>(content.get()));
  }
  return result;
}

std::string XmlFile::text(const std::string& path) const {
  const auto all = texts(path);
  return all.size() == 1 ? all.front() : std::string();
}

}  // namespace awizo::demo
