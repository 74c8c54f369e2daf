#pragma once

#include <memory>
#include <unordered_set>

#include "platform/xml.h"

namespace awizo {

/// A document that remembers which of its nodes were looked at: it shows what a reader takes and
/// where it stopped.
class TracedDocument : public XmlDocument {
 public:
  explicit TracedDocument(std::unique_ptr<XmlDocument> within) : within_(std::move(within)) {}

  /// The document itself: what is looked up there leaves no trace.
  XmlDocument& within() const { return *within_; }
  /// Whether a path has led to the node, or a walk over its neighbours.
  bool wasFound(const XmlNode& node) const { return found_.contains(node.handle()); }
  /// Whether its text, with all below it, was taken.
  bool wasTaken(const XmlNode& node) const { return taken_.contains(node.handle()); }
  /// Where the reader was last: the node that it found, or that below which it looked in vain.
  XmlNode last();

  bool loadText(std::string_view text) override { return within_->loadText(text); }
  bool loadBytes(std::string_view bytes) override { return within_->loadBytes(bytes); }
  std::int64_t failedAtLine() const override { return within_->failedAtLine(); }
  std::string fileBytes() const override { return within_->fileBytes(); }
  XmlNode node() override { return {*this, within_->node().handle()}; }
  XmlNode root() override { return {*this, within_->root().handle()}; }
  XmlNode createElement(std::string_view name) override {
    return {*this, within_->createElement(name).handle()};
  }
  void keepOnly(const XmlNode& element) override {
    within_->keepOnly(XmlNode(*within_, element.handle()));
  }
  std::string nameOf(void* node) const override { return within_->nameOf(node); }
  bool isElementNamed(void* node, std::string_view name) const override {
    return within_->isElementNamed(node, name);
  }
  std::int64_t lineOf(void* node) const override { return within_->lineOf(node); }
  std::string textOf(void* node) const override;
  void setTextOf(void* node, std::string_view text) override { within_->setTextOf(node, text); }
  std::string xmlOf(void* node) const override { return within_->xmlOf(node); }
  void* firstChildOf(void* node) const override { return found(within_->firstChildOf(node)); }
  void* nextSiblingOf(void* node) const override { return found(within_->nextSiblingOf(node)); }
  void* selectSingleOf(void* node, std::string_view path) const override;
  std::vector<void*> selectAllOf(void* node, std::string_view path) const override;
  void appendTo(void* parent, const XmlNode& child) override { within_->appendTo(parent, child); }

 private:
  void* found(void* node) const;

  std::unique_ptr<XmlDocument> within_;
  mutable std::unordered_set<const void*> found_;
  mutable std::unordered_set<const void*> taken_;
  mutable void* last_ = nullptr;
};

}  // namespace awizo
