#include "formats/upper/checking/document_check.h"

#include <algorithm>

#include "formats/upper/checking/despatch_advice_check.h"
#include "formats/upper/checking/order_check.h"
#include "formats/upper/checking/scratch_editor.h"
#include "formats/upper/reading/despatch_advice_reader.h"
#include "session/identity.h"

namespace awizo {
namespace {

/// Only a despatch advice is read a second time, as text of the machine's encoding.
constexpr const char* otherEncoding =
    "кодировка не та, что объявлена (без объявления — UTF-8): буквы заказа будут искажены или он "
    "будет отвергнут";

std::vector<Finding> unordered(const Platform& platform, std::string_view path,
                               const ReaderIdentity& reader) {
  ScratchEditor scratch(platform);
  auto document = std::make_unique<TracedDocument>(platform.xml.createDocument());
  const bool isXml = document->loadBytes(platform.files.readAll(path));
  // The second way of loading puts a line of its own before the file.
  const std::int64_t failedAt = document->failedAtLine();
  if (!LoadDocument(scratch.editor, *document, path)) {
    return {{std::max<std::int64_t>(failedAt, 1), "",
             "не XML, или файл здесь обрывается: документ будет отвергнут"}};
  }
  if (IsDespatchAdvice(*document)) {
    const ReaderIdentity intended = intendedReader(document->within());
    // The document is parsed again; two large ones needn't be in memory together.
    document.reset();
    return checkDespatchAdvice(platform, path, intended, reader);
  }
  const XmlNode root = document->within().root();
  if (root.isElement("Document-Order")) {
    std::vector<Finding> findings = checkOrder(platform, std::move(document));
    if (!isXml) findings.push_back({std::max<std::int64_t>(failedAt, 1), "", otherEncoding});
    return findings;
  }
  return {{root.line(), root.name(),
           "не Document-DespatchAdvice и не Document-Order: документ будет отвергнут"}};
}

}  // namespace

ReaderIdentity readerIdentity(const Platform& platform, std::string_view folder,
                              std::string_view partnerILN) {
  ScratchEditor scratch(platform);
  scratch.session.BuyerILN = partnerILN;
  scratch.session.OffLinePathValue = folder;
  if (!folder.empty()) readIdentity(scratch.editor);
  return {scratch.session.SellerILN, scratch.session.BuyerILN};
}

std::vector<Finding> checkDocument(const Platform& platform, std::string_view path,
                                   const ReaderIdentity& reader) {
  std::vector<Finding> findings = unordered(platform, path, reader);
  std::ranges::stable_sort(findings, {}, &Finding::line);
  return findings;
}

}  // namespace awizo
