#include <utility>

#include "formats/despatch_advice_writer.h"
#include "support/cells.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

/// A document in which one assignment of a text finds no memory; otherwise the document within.
class ScarceDocument : public XmlDocument {
 public:
  ScarceDocument(std::unique_ptr<XmlDocument> within, int failing)
      : within_(std::move(within)), untilFailure_(failing) {}

  void setTextOf(void* node, std::string_view text) override {
    if (--untilFailure_ == 0) throw errors::outOfMemory();
    within_->setTextOf(node, text);
  }

  bool loadText(std::string_view text) override { return within_->loadText(text); }
  bool loadBytes(std::string_view bytes) override { return within_->loadBytes(bytes); }
  std::string fileBytes() const override { return within_->fileBytes(); }
  XmlNode node() override { return {*this, within_->node().handle()}; }
  XmlNode root() override { return {*this, within_->root().handle()}; }
  XmlNode createElement(std::string_view name) override {
    return {*this, within_->createElement(name).handle()};
  }
  void keepOnly(const XmlNode& element) override { within_->keepOnly(element); }
  std::string nameOf(void* node) const override { return within_->nameOf(node); }
  bool isElementNamed(void* node, std::string_view name) const override {
    return within_->isElementNamed(node, name);
  }
  std::string textOf(void* node) const override { return within_->textOf(node); }
  std::string xmlOf(void* node) const override { return within_->xmlOf(node); }
  void* firstChildOf(void* node) const override { return within_->firstChildOf(node); }
  void* nextSiblingOf(void* node) const override { return within_->nextSiblingOf(node); }
  void* selectSingleOf(void* node, std::string_view path) const override {
    return within_->selectSingleOf(node, path);
  }
  std::vector<void*> selectAllOf(void* node, std::string_view path) const override {
    return within_->selectAllOf(node, path);
  }
  void appendTo(void* parent, const XmlNode& child) override { within_->appendTo(parent, child); }

 private:
  std::unique_ptr<XmlDocument> within_;
  int untilFailure_;
};

/// Makes one scarce document, the first, the present one.
class ScarceXml : public Xml {
 public:
  explicit ScarceXml(int failing) : failing_(failing) {}

  std::unique_ptr<XmlDocument> createDocument() const override {
    auto document = within_.createDocument();
    if (failing_ == 0) return document;
    return std::make_unique<ScarceDocument>(std::move(document), std::exchange(failing_, 0));
  }

 private:
  Libxml2 within_;
  mutable int failing_;
};

/// Makes no document at all.
class NoXml : public Xml {
 public:
  std::unique_ptr<XmlDocument> createDocument() const override { throw errors::outOfMemory(); }
};

/// The title of the box that the writer shows with this XML; "" for a whole document.
std::string titleWith(const Xml& xml) {
  TestEditor test;
  test.form.txtDataAwiza.setDate(makeDate(2026, 11, 21));
  test.form.txtDespatchAdviceTime.setTime(TimeOfDay{9, 5, 0});
  test.form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 22));
  test.form.txtEstimatedDeliveryTime.setTime(TimeOfDay{14, 30, 0});
  test.form.dpDataZam.setDate(makeDate(2026, 11, 2));
  test.form.txtCodeByBuyer.setText("77");
  test.form.DeliveryILN = "9520002000026";
  TestEditor::fill(test.form.grdPozycje, {lineCells()});
  TestEditor::fill(test.form.grdOpakowania, {packageCells()});
  test.session.LineCount = 1;
  test.session.IloscPozycjiOpak = 1;

  const Platform platform = test.platformWith({.xml = &xml});
  Editor editor(platform, test.screen, test.session, test.form);
  const auto document = MakeDesAdv(editor);
  EXPECT_EQ(document == nullptr, !test.face.boxes().empty());
  return test.face.boxes().empty() ? "" : test.face.lastBox().title;
}

TEST(DespatchAdviceSteps, AreToldBehindTheTitleOfAFailure) {
  const std::vector<const char*> steps{"1", "2", "3", "4", "5", "6",  "7",
                                       "7", "8", "8", "8", "8", "10", "10"};
  const std::string title = "Произошла ошибка в MakeDesAdv()";
  EXPECT_EQ(titleWith(NoXml()), title + "0");
  int assignment = 0;
  for (const char* step : steps) {
    EXPECT_EQ(titleWith(ScarceXml(++assignment)), title + step) << assignment;
  }
  EXPECT_EQ(titleWith(ScarceXml(assignment + 1)), "");
}

}  // namespace
}  // namespace awizo::test
