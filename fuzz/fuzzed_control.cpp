#include "fuzz/fuzzed_control.h"

#include <algorithm>
#include <map>

#include "formats/despatch_advice_writer.h"
#include "fuzz/targets.h"
#include "support/files/files.h"

namespace awizo::fuzz {

namespace {

void closeForm(Form& form) {
  for (int tries = 0; form.shown() && tries < 3; ++tries) form.userClose();
  require(!form.shown(), "a dialog can be closed");
}

std::string element(std::string_view name, std::string_view content) {
  std::string text;
  text.append("<").append(name).append(">").append(content);
  return text.append("</").append(name).append(">");
}

}  // namespace

FuzzedControl::FuzzedControl(std::string_view localeName) : TestControl(localeName) {
  face.answerUnscripted = [](const MessageBox&) { return Answer::yes; };
  face.actUnscripted = closeForm;
  prepareFolder();
  files.put(partnerFile, partnerInfo("ООО Покупатель"));
  files.putFolder(documentFolder);
}

void FuzzedControl::startOffLine() {
  bag.values["OnLine"] = "Off";
  start();
}

void FuzzedControl::startOnLine(const Documents& documents) {
  preparePage();
  http.reply(partnerInfo("ООО Покупатель"));
  const std::string changed = element("status", "CHANGED");
  http.reply(
      element("document-response", changed + element("document-content", documents.catalogue)));
  http.reply(
      element("dictionary-response", changed + element("document-content", documents.places)));
  http.reply(element("receive-document-response", element("document-content", documents.order)));
  start();
}

const std::string& FuzzedControl::sample(const std::string& name) {
  static std::map<std::string, std::string> read;
  std::string& bytes = read[name];
  if (bytes.empty()) {
    bytes = test::projectFile("samples/" + name);
  }
  return bytes;
}

std::string FuzzedControl::written() {
  const std::unique_ptr<XmlDocument> document = MakeDesAdv(editor);
  if (!document) return "";
  std::string bytes = document->fileBytes();
  require(xml.createDocument()->loadBytes(bytes), "what is written is well-formed");
  return bytes;
}

void FuzzedControl::readFile(std::string_view name) {
  face.onModal([&] {
    DlgWczytajZapisz& dialog = control.dlgWczytajZapisz;
    dialog.DirList.userOpen(documentFolder);
    const auto& names = dialog.FileList.rows();
    dialog.FileList.userChoose(static_cast<int>(std::ranges::find(names, name) - names.begin()));
    dialog.ImageWczytaj.userClick();
  });
  form.btnWczytaj.userClick();
}

std::string_view withoutDeclaration(std::string_view text) {
  if (!text.starts_with("<?xml")) return text;
  const std::size_t end = text.find("?>");
  return end == text.npos ? text : text.substr(end + 2);
}

}  // namespace awizo::fuzz
