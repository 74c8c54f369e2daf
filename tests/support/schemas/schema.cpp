#include "support/schemas/schema.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlschemas.h>

#include <stdexcept>

#include "support/files/files.h"

namespace awizo::test {
namespace {

struct Free {
  void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
  void operator()(xmlSchema* schema) const { xmlSchemaFree(schema); }
  void operator()(xmlSchemaParserCtxt* context) const { xmlSchemaFreeParserCtxt(context); }
  void operator()(xmlSchemaValidCtxt* context) const { xmlSchemaFreeValidCtxt(context); }
};

template <class Kind>
using Owned = std::unique_ptr<Kind, Free>;

void note(void* problems, xmlError* error) {
  const auto* node = static_cast<const xmlNode*>(error->node);
  std::string text = "line " + std::to_string(error->line) + ": ";
  if (node != nullptr && node->name != nullptr) {
    text.append(reinterpret_cast<const char*>(node->name)).append(": ");
  }
  text += error->message;
  while (text.ends_with('\n')) text.pop_back();
  static_cast<std::vector<std::string>*>(problems)->push_back(text);
}

}  // namespace

struct Schema::Parsed {
  Owned<xmlSchema> schema;
};

Schema::Schema(std::string_view name) : parsed_(std::make_unique<Parsed>()) {
  const std::string path = (projectFolder() / "docs/formats" / name).string() + ".xsd";
  std::vector<std::string> problems;
  const Owned<xmlSchemaParserCtxt> context(xmlSchemaNewParserCtxt(path.c_str()));
  xmlSchemaSetParserStructuredErrors(context.get(), note, &problems);
  parsed_->schema.reset(xmlSchemaParse(context.get()));
  if (!parsed_->schema || !problems.empty()) {
    throw std::runtime_error(path + " is no schema" +
                             (problems.empty() ? "" : ": " + problems.front()));
  }
}

Schema::~Schema() = default;

std::vector<std::string> Schema::problemsOf(std::string_view xml) const {
  const Owned<xmlDoc> document(
      xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, nullptr,
                    XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
  if (!document) return {"no XML"};
  std::vector<std::string> problems;
  const Owned<xmlSchemaValidCtxt> context(xmlSchemaNewValidCtxt(parsed_->schema.get()));
  xmlSchemaSetValidStructuredErrors(context.get(), note, &problems);
  const int answer = xmlSchemaValidateDoc(context.get(), document.get());
  // An answer that says why is as good as its reasons.
  if (answer != 0 && problems.empty()) problems.emplace_back("invalid for no reason told");
  return problems;
}

}  // namespace awizo::test
