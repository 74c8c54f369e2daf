#include "adapters/libxml2/selecting.h"

#include <libxml/xpathInternals.h>

#include <array>
#include <optional>
#include <string>

#include "platform/run_time_error.h"

namespace awizo::libxml2 {
namespace {

/// Bounds what a path made from foreign text can cost; reading a document of the largest size
/// takes a fraction of it.
constexpr unsigned long maximumOperations = 200'000'000;

bool startsName(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') || letter == '_';
}

bool continuesName(char letter) {
  return startsName(letter) || (letter >= '0' && letter <= '9') || letter == '-' || letter == '.';
}

/// The names of a path that has plain child steps only.
struct Steps {
  std::array<std::string_view, 12> names;
  std::size_t count = 0;
  bool fromDocument = false;
};

std::optional<Steps> plainSteps(std::string_view path) {
  Steps steps;
  std::size_t at = 0;
  if (path.starts_with('/')) {
    steps.fromDocument = true;
    at = 1;
  }
  while (steps.count < steps.names.size()) {
    if (at == path.size() || !startsName(path[at])) return std::nullopt;
    const std::size_t start = at;
    while (at < path.size() && continuesName(path[at])) ++at;
    steps.names[steps.count++] = path.substr(start, at - start);
    if (at == path.size()) return steps;
    if (path[at] != '/') return std::nullopt;
    ++at;
  }
  return std::nullopt;
}

/// A first child may lack what a later one of the same name has, so the walk goes back up.
xmlNode* firstBelow(const xmlNode* parent, const Steps& steps, std::size_t step) {
  for (xmlNode* child = parent->children; child; child = child->next) {
    fetchFollowing(child);
    if (!isElementNamed(child, steps.names[step])) continue;
    if (step + 1 == steps.count) return child;
    if (xmlNode* found = firstBelow(child, steps, step + 1)) return found;
  }
  return nullptr;
}

void allBelow(const xmlNode* parent, const Steps& steps, std::size_t step,
              std::vector<xmlNode*>& found) {
  for (xmlNode* child = parent->children; child; child = child->next) {
    fetchFollowing(child);
    if (!isElementNamed(child, steps.names[step])) continue;
    if (step + 1 == steps.count) {
      found.push_back(child);
    } else {
      allBelow(child, steps, step + 1, found);
    }
  }
}

xmlNode* walkStart(xmlNode* start, const Steps& steps) {
  if (steps.fromDocument) return reinterpret_cast<xmlNode*>(start->doc);
  const bool hasElements = start->type == XML_ELEMENT_NODE || start->type == XML_DOCUMENT_NODE;
  return hasElements ? start : nullptr;
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
  if (const std::optional<Steps> steps = plainSteps(path)) {
    const xmlNode* top = walkStart(start, *steps);
    return top ? firstBelow(top, *steps, 0) : nullptr;
  }
  const std::vector<xmlNode*> found = evaluate(start, path);
  return found.empty() ? nullptr : found.front();
}

std::vector<xmlNode*> Selecting::all(xmlNode* start, std::string_view path) {
  const std::optional<Steps> steps = plainSteps(path);
  if (!steps) return evaluate(start, path);
  std::vector<xmlNode*> found;
  if (const xmlNode* top = walkStart(start, *steps)) allBelow(top, *steps, 0, found);
  return found;
}

std::vector<xmlNode*> Selecting::evaluate(xmlNode* start, std::string_view path) {
  if (path.find('\0') != path.npos) throw errors::invalidXPath();
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
