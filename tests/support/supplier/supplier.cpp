#include "support/supplier/supplier.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "support/files/files.h"
#include "support/schemas/schema.h"

namespace awizo::test {
namespace {

namespace fs = std::filesystem;

void expectDocumentsFit(const fs::path& folder) {
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(folder, none)) {
    if (!entry.is_regular_file() || entry.path().extension() != ".xml") continue;
    const std::string bytes = readFile(entry.path());
    // Tests put files of other kinds here as well.
    if (!bytes.starts_with("<Document-DespatchAdvice><DespatchAdvice-Header>")) continue;
    static const Schema schema("despatch-advice-written");
    EXPECT_THAT(schema.problemsOf(bytes), testing::IsEmpty()) << entry.path();
  }
}

}  // namespace

Supplier::~Supplier() {
  expectDocumentsFit(place.posted());
  expectDocumentsFit(place.documents());
}

std::vector<std::string> Supplier::options() const {
  return {"--offline-path", place.folder().string(),    "--locale",   locale_,
          "--now",          "2026-11-21T10:15:00",      "--property", "PartnerName=Demo",
          "--property",     "PartnerILN=9520002000019", "--property", "PartnerURL=partner"};
}

Conversation Supplier::startOffLine(const std::vector<std::string>& more,
                                    const std::vector<std::string>& launcher) const {
  std::vector<std::string> all = options();
  all.insert(all.end(), {"--property", "OnLine=Off"});
  all.insert(all.end(), more.begin(), more.end());
  return Conversation(all, {}, launcher);
}

Conversation Supplier::startOnLine(const DemoService& service,
                                   const std::vector<std::string>& more) const {
  std::vector<std::string> all = options();
  all.insert(all.end(), {"--page-url", service.pageUrl(), "--cookie", "session=1; user=anna"});
  all.insert(all.end(), more.begin(), more.end());
  return Conversation(all);
}

std::string Supplier::number(std::string_view withPoint) const {
  std::string text(withPoint);
  if (locale_ == "ru_RU") std::ranges::replace(text, '.', ',');
  return text;
}

ReadDocument::ReadDocument(std::string_view xml) : document_(Libxml2().createDocument()) {
  EXPECT_TRUE(document_->loadBytes(xml)) << xml;
}

std::string ReadDocument::text(std::string_view path) const {
  const XmlNode node = document_->node().selectSingle(path);
  return node ? node.text() : "(none)";
}

std::size_t ReadDocument::count(std::string_view path) const {
  return document_->node().selectAll(path).size();
}

void completeHeader(Conversation& editor, std::string_view number) {
  editor.type("txtNrAwiza", number);
  editor.type("txtCodeByBuyer", "417");
}

void addPackage(Conversation& editor, std::string_view description, std::string_view serial,
                int parent) {
  editor.click("btnDodajOpak");
  editor.type("DlgSzczegoly.txtPackageDesc", description);
  if (parent >= 0) editor.choose("DlgSzczegoly.cboxParentPackage", parent);
  editor.type("DlgSzczegoly.cboxILNLokalizacji", deliveryPlace);
  editor.type("DlgSzczegoly.txtSerialNumberN", serial);
  editor.click("DlgSzczegoly.btnDodaj");
}

void packLine(Conversation& editor, int row, std::string_view package, std::string_view quantity) {
  editor.cell("grdPozycje", row, 1);
  editor.click("btnEdytuj");
  editor.click("DlgDodaj.Command1");
  editor.chooseText("DlgdodajPule.cboxPackages", package);
  if (!quantity.empty()) editor.type("DlgdodajPule.txtQuantity", quantity);
  editor.click("DlgdodajPule.btnDodaj");
  editor.click("DlgDodaj.btnDodaj");
}

void openSaving(Conversation& editor) {
  editor.show();
  editor.type("txtNrAwiza", "1");
  editor.type("txtNrZam", "2");
  openSavingAgain(editor);
}

void openSavingAgain(Conversation& editor) {
  editor.click("btnZapisz");
  if (editor.get("session")["AllPacked"] == false) editor.answer("Yes");
}

void saveAs(Conversation& editor, const std::string& path) {
  editor.type("DlgWczytajZapisz.txtAwizoPlik", path);
  editor.click("DlgWczytajZapisz.ImageZapisz");
}

}  // namespace awizo::test
