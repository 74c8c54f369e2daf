#include "adapters/libxml2/flat_loading.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "adapters/libxml2/parsing.h"

namespace awizo::libxml2 {
namespace {

struct FlatLoad : Load {
  FlatTree tree;
  std::vector<std::size_t> open;  ///< the document and the elements that have not ended
  std::size_t lastChild = 0;      ///< of the innermost of them; 0 for none
  /// White space at the start of a text, held back until it is known whether more text follows:
  /// between two elements it is dropped.
  std::string heldBlanks;
  bool isFlat = true;
};

FlatLoad& flatLoadOf(void* context) { return static_cast<FlatLoad&>(loadOf(context)); }

void leaveToOther(void* context) {
  flatLoadOf(context).isFlat = false;
  stop(context);
}

std::uint16_t currentLine(void* context) {
  constexpr int most = std::numeric_limits<std::uint16_t>::max();
  return static_cast<std::uint16_t>(std::min(contextOf(context)->input->line, most));
}

/// Adds a node as the last child of the innermost open one.
FlatNode& addNode(FlatLoad& load, void* context) {
  if (load.lastChild != 0) load.tree.nodes[load.lastChild].isLast = false;
  load.lastChild = load.tree.nodes.size();
  const auto textStart = static_cast<std::uint32_t>(load.tree.texts.size());
  return load.tree.nodes.emplace_back(FlatNode{
      .textStart = textStart, .textEnd = textStart, .line = currentLine(context), .isLast = true});
}

/// Whether the last child is of the kind that the member tells.
bool endsWith(const FlatLoad& load, bool FlatNode::*isOfKind) {
  return load.lastChild != 0 && load.tree.nodes[load.lastChild].*isOfKind;
}

/// Behind what the last child holds, if that is of the kind, else as a new child.
void addText(void* context, std::string_view text, bool FlatNode::*isOfKind) {
  FlatLoad& load = flatLoadOf(context);
  if (!endsWith(load, isOfKind)) addNode(load, context).*isOfKind = true;
  FlatNode& node = load.tree.nodes[load.lastChild];
  load.tree.texts += text;
  // libxml2 has its own opinion on texts that are so long.
  constexpr std::size_t mostOfOneText = 1'000'000;
  if (load.tree.texts.size() - node.textStart > mostOfOneText ||
      load.tree.texts.size() > std::numeric_limits<std::uint32_t>::max()) {
    leaveToOther(context);
    return;
  }
  node.textEnd = static_cast<std::uint32_t>(load.tree.texts.size());
}

void takeHeldBlanks(void* context) {
  std::string& held = flatLoadOf(context).heldBlanks;
  if (held.empty()) return;
  addText(context, held, &FlatNode::isText);
  held.clear();
}

void takeCharacters(void* context, const xmlChar* text, int length) {
  FlatLoad& load = flatLoadOf(context);
  const std::string_view view(reinterpret_cast<const char*>(text),
                              static_cast<std::size_t>(length));
  if (!endsWith(load, &FlatNode::isText) && isBlank(*text) && isBlank(view)) {
    load.heldBlanks += view;
    return;
  }
  countNodes(context, 1);
  takeHeldBlanks(context);
  addText(context, view, &FlatNode::isText);
}

void takeSection(void* context, const xmlChar* text, int length) {
  FlatLoad& load = flatLoadOf(context);
  // White space between two sections parts them; what is apart isn't known of a text.
  if (!load.heldBlanks.empty() && endsWith(load, &FlatNode::isSection)) {
    leaveToOther(context);
    return;
  }
  load.heldBlanks.clear();
  countNodes(context, 1);
  addText(context, {reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)},
          &FlatNode::isSection);
  // libxml2 notes the line of all nodes but these.
  load.tree.nodes[load.lastChild].line = 0;
}

void takeStartTag(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri,
                  int namespaceCount, const xmlChar**, int attributeCount, int, const xmlChar**) {
  FlatLoad& load = flatLoadOf(context);
  if (prefix || uri || namespaceCount > 0 || attributeCount > 0) {
    leaveToOther(context);
    return;
  }
  countNodes(context, 1);
  load.heldBlanks.clear();
  addNode(load, context).name = name;
  load.open.push_back(load.lastChild);
  load.lastChild = 0;
}

void takeEndTag(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
  FlatLoad& load = flatLoadOf(context);
  if (load.lastChild == 0) takeHeldBlanks(context);
  load.heldBlanks.clear();
  load.lastChild = load.open.back();
  load.open.pop_back();
  FlatNode& node = load.tree.nodes[load.lastChild];
  node.size = static_cast<std::uint32_t>(load.tree.nodes.size() - load.lastChild);
  node.textEnd = static_cast<std::uint32_t>(load.tree.texts.size());
}

void hookFlat(xmlSAXHandler& events) {
  events.characters = takeCharacters;
  events.ignorableWhitespace = takeCharacters;
  events.startElementNs = takeStartTag;
  events.endElementNs = takeEndTag;
  events.comment = [](void* context, const xmlChar*) { leaveToOther(context); };
  events.processingInstruction = [](void* context, const xmlChar*, const xmlChar*) {
    leaveToOther(context);
  };
  events.cdataBlock = takeSection;
  events.internalSubset = [](void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
    leaveToOther(context);
  };
  // Entities that need no declaration aren't asked for.
  events.getEntity = [](void* context, const xmlChar*) -> xmlEntity* {
    leaveToOther(context);
    return nullptr;
  };
}

/// How many bytes lie between the tags, but for white space alone.
std::size_t textSizeOf(std::string_view bytes) {
  std::size_t size = 0;
  for (std::size_t end = bytes.find('>'); end != bytes.npos;) {
    const std::string_view after = bytes.substr(end + 1);
    const std::string_view text = after.substr(0, after.find('<'));
    if (!isBlank(text)) size += text.size();
    // A text may have a '>' too.
    end = bytes.find('>', end + 1 + text.size());
  }
  return size;
}

/// As many as in all if the document goes on as it begins, and some more. A string that grows by
/// doubling leaves behind what not every machine takes back.
std::size_t likelyTextSize(std::string_view bytes) {
  constexpr std::size_t sampleSize = 1 << 16;
  const std::string_view sample = bytes.substr(0, sampleSize);
  const std::size_t likely = bytes.size() / (sample.size() + 1) * textSizeOf(sample) / 8 * 9;
  return std::min(likely, bytes.size());
}

void beginTree(FlatLoad& load, std::string_view bytes) {
  // Nearly right for what has a text in each innermost element; memory that isn't used isn't taken.
  constexpr std::size_t most = 2'000'000;
  const auto tags = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '<'));
  load.tree.nodes.reserve(std::min(tags, most) + 1);
  load.tree.nodes.emplace_back();
  load.tree.texts.reserve(likelyTextSize(bytes));
  load.open.push_back(0);
}

void endTree(FlatLoad& load) {
  FlatNode& document = load.tree.nodes.front();
  document.size = static_cast<std::uint32_t>(load.tree.nodes.size());
  document.textEnd = static_cast<std::uint32_t>(load.tree.texts.size());
  document.isLast = true;
}

}  // namespace

std::optional<Parsed> parseFlat(std::string_view bytes, int options) {
  FlatLoad load;
  const Owned<xmlParserCtxt> context = newContext(load);
  hookFlat(*context->sax);
  beginTree(load, bytes);
  Parsed parsed;
  parsed.document = run(*context, bytes, options);
  if (!load.isFlat) return std::nullopt;
  if (!parsed.document) {
    parsed.failedAtLine = context->lastError.line;
    return parsed;
  }
  endTree(load);
  parsed.flat = std::move(load.tree);
  return parsed;
}

}  // namespace awizo::libxml2
