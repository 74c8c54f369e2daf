#include "adapters/libxml2/selecting.h"

#include <libxml/xpathInternals.h>

#include <array>
#include <string>

#include "platform/run_time_error.h"

namespace awizo::libxml2 {
namespace {

/// Bounds what a path made from foreign text can cost; reading a document of the largest size
/// takes a fraction of it.
constexpr unsigned long maximumOperations = 200'000'000;

enum class Sign : unsigned char { other, startsName, continuesName, slash };

constexpr std::array<Sign, 256> signs = [] {
  std::array<Sign, 256> kinds{};
  for (unsigned letter = 'a'; letter <= 'z'; ++letter) kinds[letter] = Sign::startsName;
  for (unsigned letter = 'A'; letter <= 'Z'; ++letter) kinds[letter] = Sign::startsName;
  for (unsigned digit = '0'; digit <= '9'; ++digit) kinds[digit] = Sign::continuesName;
  kinds['_'] = Sign::startsName;
  kinds['-'] = kinds['.'] = Sign::continuesName;
  kinds['/'] = Sign::slash;
  return kinds;
}();

/// A path that has plain child steps only, each by a name in the letters A to Z.
struct PlainPath {
  std::string_view names;  ///< "Line/Line-Item/EAN"; empty when the path has other steps
  bool fromDocument = false;
};

PlainPath plainPath(std::string_view path) {
  PlainPath plain{path, path.starts_with('/')};
  if (plain.fromDocument) plain.names.remove_prefix(1);
  bool atStart = true;
  for (const char letter : plain.names) {
    const Sign sign = signs[static_cast<unsigned char>(letter)];
    if (sign == Sign::other || (atStart && sign != Sign::startsName)) return {};
    atStart = sign == Sign::slash;
  }
  return atStart ? PlainPath{} : plain;
}

/// The first name of the path; `rest` is what follows it, empty behind the last.
std::string_view firstName(std::string_view names, std::string_view& rest) {
  const std::size_t end = names.find('/');
  rest = end == names.npos ? std::string_view() : names.substr(end + 1);
  return names.substr(0, end);
}

/// A first child may lack what a later one of the same name has, so the walk goes back up.
xmlNode* firstBelow(const xmlNode* parent, std::string_view names) {
  std::string_view rest;
  const std::string_view name = firstName(names, rest);
  for (xmlNode* child = parent->children; child; child = child->next) {
    fetchFollowing(child);
    if (!isElementNamed(child, name)) continue;
    if (rest.empty()) return child;
    if (xmlNode* found = firstBelow(child, rest)) return found;
  }
  return nullptr;
}

void allBelow(const xmlNode* parent, std::string_view names, std::vector<xmlNode*>& found) {
  std::string_view rest;
  const std::string_view name = firstName(names, rest);
  for (xmlNode* child = parent->children; child; child = child->next) {
    fetchFollowing(child);
    if (!isElementNamed(child, name)) continue;
    if (rest.empty()) {
      found.push_back(child);
    } else {
      allBelow(child, rest, found);
    }
  }
}

/// Where the walk of a path begins; none for a node that has no children.
const xmlNode* walkStart(const xmlNode* start, const PlainPath& path) {
  if (path.fromDocument) return reinterpret_cast<const xmlNode*>(start->doc);
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
  const PlainPath plain = plainPath(path);
  if (!plain.names.empty()) {
    const xmlNode* top = walkStart(start, plain);
    return top ? firstBelow(top, plain.names) : nullptr;
  }
  const std::vector<xmlNode*> found = evaluate(start, path);
  return found.empty() ? nullptr : found.front();
}

std::vector<xmlNode*> Selecting::all(xmlNode* start, std::string_view path) {
  const PlainPath plain = plainPath(path);
  if (plain.names.empty()) return evaluate(start, path);
  std::vector<xmlNode*> found;
  if (const xmlNode* top = walkStart(start, plain)) allBelow(top, plain.names, found);
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
