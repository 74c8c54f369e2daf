#pragma once

#include <unordered_set>

#include "adapters/libxml2/content.h"
#include "adapters/libxml2/loading.h"
#include "adapters/libxml2/path_shapes.h"
#include "adapters/libxml2/selecting.h"
#include "adapters/libxml2/writing.h"
#include "platform/xml.h"

namespace awizo::libxml2 {

/// One document.
class Document final : public XmlDocument {
 public:
  Document();
  ~Document() override;
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  bool loadText(std::string_view text) override;
  bool loadBytes(std::string_view bytes) override;
  std::int64_t failedAtLine() const override { return failedAtLine_; }
  std::string fileBytes() const override;

  XmlNode node() override;
  XmlNode root() override;
  XmlNode createElement(std::string_view name) override;
  void keepOnly(const XmlNode& element) override;

  std::string nameOf(void* node) const override;
  bool isElementNamed(void* node, std::string_view name) const override;
  std::int64_t lineOf(void* node) const override;
  std::string textOf(void* node) const override;
  void setTextOf(void* node, std::string_view text) override;
  std::string xmlOf(void* node) const override;
  void* firstChildOf(void* node) const override;
  void* nextSiblingOf(void* node) const override;
  void* selectSingleOf(void* node, std::string_view path) const override;
  std::vector<void*> selectAllOf(void* node, std::string_view path) const override;
  void appendTo(void* parent, const XmlNode& child) override;

 private:
  bool load(std::string_view bytes, Decoding decoding);
  /// Replaces the content; null makes the document empty.
  void take(Parsed parsed);
  void keepOnlyNode(xmlNode* kept);
  const FlatNode* walkStart(const FlatTree& flat, void* node, const WalkedPath& path) const;
  void freeLoose();

  mutable Content content_;
  Declaration declaration_;
  bool isLoaded_ = false;
  std::int64_t failedAtLine_ = 0;
  /// Elements that were created and not yet put anywhere.
  std::unordered_set<xmlNode*> loose_;
  mutable Selecting selecting_;
};

}  // namespace awizo::libxml2
