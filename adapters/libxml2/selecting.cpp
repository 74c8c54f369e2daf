#include "adapters/libxml2/selecting.h"

#include <libxml/xpathInternals.h>

#include <string>

#include "adapters/libxml2/path_shapes.h"
#include "adapters/libxml2/text.h"
#include "adapters/libxml2/walking.h"
#include "platform/run_time_error.h"

namespace awizo::libxml2 {
namespace {

/// Bounds what a path made from foreign text can cost; reading a document of the largest size
/// takes a fraction of it.
constexpr unsigned long maximumOperations = 200'000'000;

/// libxml2's tree, to be walked.
struct NodeTree {
  static xmlNode* firstChild(const xmlNode* node) { return node->children; }
  static xmlNode* next(const xmlNode* node) {
    fetchFollowing(node);
    return node->next;
  }
  static bool isElementNamed(const xmlNode* node, std::string_view name) {
    return libxml2::isElementNamed(node, name);
  }
  static std::string trimmedText(const xmlNode* node) { return libxml2::trimmedText(node); }
};

/// Where the walk of a path begins; none for a node that has no children.
xmlNode* walkStart(xmlNode* start, const WalkedPath& path) {
  if (path.fromDocument) return reinterpret_cast<xmlNode*>(start->doc);
  const bool hasChildren = start->type == XML_ELEMENT_NODE || start->type == XML_DOCUMENT_NODE;
  return hasChildren ? start : nullptr;
}

void ignoreError(void*, xmlError*) {}
void ignoreMessage(void*, const char*, ...) {}

/// Some messages of an evaluation go past the context's handler to the one of the whole thread.
class Silence {
 public:
  Silence() : handler_(xmlGenericError), context_(xmlGenericErrorContext) {
    xmlSetGenericErrorFunc(nullptr, ignoreMessage);
  }
  ~Silence() { xmlSetGenericErrorFunc(context_, handler_); }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  xmlGenericErrorFunc handler_;
  void* context_;
};

}  // namespace

xmlNode* Selecting::first(xmlNode* start, std::string_view path) {
  if (const std::optional<WalkedPath> walked = walkedPath(path)) {
    xmlNode* top = walkStart(start, *walked);
    return top ? firstOnPath(NodeTree(), top, *walked) : nullptr;
  }
  const std::vector<xmlNode*> found = evaluate(start, path);
  return found.empty() ? nullptr : found.front();
}

std::vector<xmlNode*> Selecting::all(xmlNode* start, std::string_view path) {
  if (const std::optional<WalkedPath> walked = walkedPath(path)) {
    xmlNode* top = walkStart(start, *walked);
    return top ? allOnPath(NodeTree(), top, *walked) : std::vector<xmlNode*>();
  }
  return evaluate(start, path);
}

std::vector<xmlNode*> Selecting::evaluate(xmlNode* start, std::string_view path) {
  if (path.find('\0') != path.npos || hasExponent(path)) throw errors::invalidXPath();
  if (!context_) {
    context_.reset(xmlXPathNewContext(start->doc));
    if (!context_) throw errors::outOfMemory();
    context_->error = ignoreError;
    context_->opLimit = maximumOperations;
  }
  const Silence silence;
  context_->opCount = 0;
  const std::string text(path);
  const Owned<xmlXPathCompExpr> expression(
      xmlXPathCtxtCompile(context_.get(), bytesOf(text.c_str())));
  if (!expression) throw errors::invalidXPath();
  context_->node = start;
  const Owned<xmlXPathObject> result(xmlXPathCompiledEval(expression.get(), context_.get()));
  if (!result || result->type != XPATH_NODESET) throw errors::invalidXPath();

  std::vector<xmlNode*> found;
  xmlNodeSet* nodes = result->nodesetval;
  if (!nodes) return found;
  xmlXPathNodeSetSort(nodes);
  for (int i = 0; i < nodes->nodeNr; ++i) {
    // Namespace nodes are copies that die with the result.
    if (nodes->nodeTab[i]->type != XML_NAMESPACE_DECL) found.push_back(nodes->nodeTab[i]);
  }
  return found;
}

}  // namespace awizo::libxml2
