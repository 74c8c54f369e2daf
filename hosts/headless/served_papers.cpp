#include "hosts/headless/served_papers.h"

#include "desk/host_boxes.h"
#include "desk/layout_words.h"
#include "papers/packing_csv.h"
#include "papers/svg_page.h"
#include "session/record/off_line_path.h"

namespace awizo::headless {

namespace {

constexpr std::string_view csvEnding = ".csv";

}  // namespace

ServedPapers::ServedPapers(const Editor& editor, Files& files, SettingsStore& settings,
                           Conversation& conversation)
    : editor_(editor),
      files_(files),
      settings_(settings),
      conversation_(conversation),
      dialog_(editor.screen(), widths_, symbols_, settings) {
  dialog_.onSheet = [this] { tellSheet(); };
  dialog_.onPrint = [this] { return print(); };
}

std::optional<PapersSource> ServedPapers::source() {
  if (!editor_.form.takesInput()) return std::nullopt;
  std::optional<PapersSource> source;
  if (const auto error = caughtError([&] { source = papersSource(editor_); })) {
    tell(words::noPapers, *error);
  }
  return source;
}

void ServedPapers::show(Paper paper) {
  if (std::optional<PapersSource> shown = source()) dialog_.show(std::move(*shown), paper);
}

void ServedPapers::showSaved(std::string_view classicPath, std::string_view name) {
  if (!editor_.form.takesInput()) return;
  PapersSource source;
  const auto error = caughtError([&] {
    source = papersSource(editor_.platform.xml, files_, classicPath, keptOffLinePath(settings_));
  });
  if (error) return tell(name, *error);
  dialog_.show(std::move(source), Paper::labels);
}

void ServedPapers::handOutPackingCsv() {
  const std::optional<PapersSource> shown = source();
  if (!shown) return;
  conversation_.emit(
      {{"event", "file"},
       {"name", paperFileName(words::packingListTitle, shown->advice.header.number, csvEnding)},
       {"text", papers::packingCsv(papers::shipmentOf(shown->advice))}});
}

void ServedPapers::tell(std::string_view what, const RunTimeError& error) {
  editor_.screen().messageBox(paperRefusal(std::string(what), error));
}

void ServedPapers::tellSheet() {
  const papers::Page* page = dialog_.page();
  conversation_.emit(
      {{"event", "sheet"}, {"svg", page == nullptr ? "" : papers::svgOf(*page, widths_)}});
}

bool ServedPapers::print() {
  protocol::Json sheets = protocol::Json::array();
  for (const papers::Page& page : dialog_.pages()) sheets.push_back(papers::svgOf(page, widths_));
  conversation_.emit(
      {{"event", "print"}, {"title", dialog_.title()}, {"sheets", std::move(sheets)}});
  // How it ends nobody knows yet.
  return false;
}

void ServedPapers::printingEnded() {
  dialog_.printingEnded([this](const Question& question) { return conversation_.ask(question); });
}

}  // namespace awizo::headless
