// What checking finds in a document, against reading it.

#include <algorithm>

#include "formats/upper/checking/document_check.h"
#include "fuzz/fuzzed_control.h"
#include "fuzz/targets.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo::fuzz {

namespace {

constexpr std::string_view documentName = "document.xml";

void requirePlainWords(const Finding& finding) {
  require(finding.line >= 0, "a finding's line is none or one of the file");
  for (const std::string& text : {finding.element, finding.text}) {
    require(isUtf8(text) && text.find('\n') == text.npos, "a finding is one line of text");
  }
  require(!finding.text.empty(), "a finding says something");
}

void requireReading(std::string_view bytes) {
  FuzzedControl desk;
  desk.startOffLine();
  desk.files.put("c:\\docs\\document.xml", bytes);
  desk.readFile(documentName);
  // "break1" and the number of packages are shown at every reading.
  const std::vector<std::string> texts = desk.face.texts();
  require(texts.size() == 2 && texts.front() == "break1",
          "a despatch advice without findings is read without a word");
}

/// Whether the bytes can be part of the service's reply as they are.
bool fitsIntoAReply(std::string_view bytes) {
  return bytes.starts_with('<') && !bytes.starts_with("<?") && isUtf8(bytes) &&
         bytes.find("<!DOCTYPE") == bytes.npos;
}

void requireTaking(std::string_view bytes) {
  FuzzedControl desk;
  desk.startOnLine({"", "", bytes});
  require(desk.face.boxes().empty(), "an order without findings is taken without a word");
  require(desk.form.ValidLineCount == desk.session.LineCount,
          "lines without findings pass the line check");
}

}  // namespace

void checking(std::string_view bytes) {
  FuzzedControl desk;
  const std::string path =
      std::string(FuzzedControl::documentFolder).append("\\").append(documentName);
  desk.files.put(path, bytes);
  const ReaderIdentity reader{std::string(FuzzedControl::seller),
                              std::string(FuzzedControl::buyer)};
  std::vector<Finding> findings;
  try {
    findings = checkDocument(desk.platform, path, reader);
  } catch (const RunTimeError&) {
    return;
  }
  std::ranges::for_each(findings, requirePlainWords);
  if (!findings.empty()) return;
  // What isn't XML can only be a despatch advice, which is read as text then.
  const std::unique_ptr<XmlDocument> document = desk.xml.createDocument();
  const bool isOrder =
      document->loadBytes(bytes) && document->root().name() != "Document-DespatchAdvice";
  if (!isOrder)
    requireReading(bytes);
  else if (fitsIntoAReply(bytes))
    requireTaking(bytes);
}

}  // namespace awizo::fuzz
