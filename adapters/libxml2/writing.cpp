#include "adapters/libxml2/writing.h"

#include <libxml/xmlsave.h>

#include <string_view>

#include "adapters/libxml2/loading.h"
#include "platform/run_time_error.h"

namespace awizo::libxml2 {
namespace {

constexpr const char* utf8 = "UTF-8";

int appendTo(void* target, const char* bytes, int count) {
  static_cast<std::string*>(target)->append(bytes, static_cast<std::size_t>(count));
  return count;
}

int doNothing(void*) { return 0; }

/// libxml2 writes attributes in the encoding named in the document; it is set for the time of
/// writing.
class LentEncoding {
 public:
  LentEncoding(xmlDoc* document, const char* encoding)
      : document_(document), kept_(document->encoding) {
    document_->encoding = bytesOf(encoding);
  }
  ~LentEncoding() { document_->encoding = kept_; }
  LentEncoding(const LentEncoding&) = delete;
  LentEncoding& operator=(const LentEncoding&) = delete;

 private:
  xmlDoc* document_;
  const xmlChar* kept_;
};

/// An output of libxml2 that ends in a string; `encoder` may be none for UTF-8.
class Output {
 public:
  explicit Output(xmlCharEncodingHandler* encoder)
      : buffer_(xmlOutputBufferCreateIO(appendTo, doNothing, &text_, encoder)) {
    if (!buffer_) throw errors::outOfMemory();
  }
  ~Output() {
    if (buffer_) xmlOutputBufferClose(buffer_);
  }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  void write(std::string_view text) {
    xmlOutputBufferWrite(buffer_, static_cast<int>(text.size()), text.data());
  }
  void write(xmlNode* node, const char* encoding) {
    xmlNodeDumpOutput(buffer_, node->doc, node, 0, 0, encoding);
  }
  std::string finish() {
    xmlOutputBufferClose(buffer_);
    buffer_ = nullptr;
    return std::move(text_);
  }

 private:
  std::string text_;
  xmlOutputBuffer* buffer_;
};

std::string declarationLine(const xmlDoc* document, std::string_view encoding) {
  std::string line = "<?xml version=\"";
  line += document->version ? viewOf(document->version) : "1.0";
  line += '"';
  if (!encoding.empty()) line.append(" encoding=\"").append(encoding).append("\"");
  if (document->standalone == 1) line += " standalone=\"yes\"";
  if (document->standalone == 0) line += " standalone=\"no\"";
  return line + "?>\n";
}

std::string write(xmlDoc* document, const Declaration& declaration, const char* encoding,
                  xmlCharEncodingHandler* encoder) {
  const LentEncoding lent(document, encoding);
  Output output(encoder);
  if (declaration.present) {
    output.write(declarationLine(document, declaration.encoding.empty() ? "" : encoding));
  }
  for (xmlNode* child = document->children; child; child = child->next) {
    output.write(child, encoding);
    if (declaration.present || child->next) output.write("\n");
  }
  return output.finish();
}

/// Whether the encoding is known and a reader finds its declaration again: UTF-7, for one, writes
/// even the first "<" in another way.
bool readsBack(const char* encoding) {
  xmlCharEncodingHandler* encoder = xmlFindCharEncodingHandler(encoding);
  if (!encoder) return false;
  Output output(encoder);
  output.write(
      std::string("<?xml version=\"1.0\" encoding=\"").append(encoding).append("\"?><a/>"));
  return parse(output.finish(), Decoding::byDeclaration).document != nullptr;
}

}  // namespace

std::string nodeText(xmlNode* node) {
  const LentEncoding lent(node->doc, utf8);
  Output output(nullptr);
  output.write(node, utf8);
  return output.finish();
}

std::string documentText(xmlDoc* document, const Declaration& declaration) {
  return write(document, declaration, utf8, nullptr);
}

std::string documentBytes(xmlDoc* document, const Declaration& declaration) {
  const char* encoding = declaration.encoding.c_str();
  if (declaration.encoding.empty() || xmlParseCharEncoding(encoding) == XML_CHAR_ENCODING_UTF8) {
    return documentText(document, declaration);
  }
  if (!readsBack(encoding)) return documentText(document, declaration);
  return write(document, declaration, encoding, xmlFindCharEncodingHandler(encoding));
}

}  // namespace awizo::libxml2
