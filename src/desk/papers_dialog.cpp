#include "desk/papers_dialog.h"

#include <array>
#include <charconv>

#include "desk/desk_settings.h"
#include "papers/label_layout.h"
#include "papers/labels.h"
#include "papers/packing_list.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::array<int, 3> resolutions{203, 300, 600};
constexpr std::array<std::string_view, 4> copies{"По виду упаковки", "1", "2", "3"};
constexpr const char* settingsSection = "Papers";

enum PackageChoice { allPackages, markedPackages, packagesWithoutLabel };

int keptRow(SettingsStore& settings, const char* key, int fallback, int count) {
  const std::string kept = settings.read(deskSettings, settingsSection, key, "");
  int row = fallback;
  std::from_chars(kept.data(), kept.data() + kept.size(), row);
  return row >= 0 && row < count ? row : fallback;
}

std::string_view paperWords(int paper) {
  constexpr std::array<std::string_view, 3> words{"Этикетки", "Упаковочный лист",
                                                  "Листы в упаковки"};
  return words[static_cast<std::size_t>(paper)];
}

std::string titleOf(std::string_view paper, std::string_view number) {
  return joined({paper, number.empty() ? "" : " ", number});
}

}  // namespace

PapersDialog::PapersDialog(Screen& screen, const papers::TextMeasure& measure,
                           const papers::SymbolEncoder& encoder, SettingsStore& settings)
    : Form(screen, "PapersDialog"),
      cboPaper(*this, "cboPaper", "Что:", ListStyle::listOnly),
      cboPackages(*this, "cboPackages", "Упаковки:", ListStyle::listOnly),
      cboSize(*this, "cboSize", "Размер:", ListStyle::listOnly),
      cboCopies(*this, "cboCopies", "Копий:", ListStyle::listOnly),
      cboPrinter(*this, "cboPrinter", "Точек на дюйм:", ListStyle::listOnly),
      btnPrevious(*this, "btnPrevious", "П&редыдущий"),
      btnNext(*this, "btnNext", "&Следующий"),
      lblSheet(*this, "lblSheet"),
      lblNotes(*this, "lblNotes"),
      btnPdf(*this, "btnPdf", "&В файл PDF…"),
      btnPrint(*this, "btnPrint", "&Печать…"),
      btnClose(*this, "btnClose", "&Закрыть"),
      measure_(measure),
      encoder_(encoder),
      settings_(settings) {
  closeButton = &btnClose;
  for (const int paper : {0, 1, 2}) cboPaper.addRow(paperWords(paper));
  for (const char* row : {"Все", "Отмеченные в таблице", "Ещё без этикетки"})
    cboPackages.addRow(row);
  for (const char* row : {"По виду упаковки", "A5", "A6"}) cboSize.addRow(row);
  for (const std::string_view row : copies) cboCopies.addRow(row);
  for (const int resolution : resolutions) cboPrinter.addRow(std::to_string(resolution));
  for (DropDownList* list : {&cboPaper, &cboPackages, &cboSize, &cboCopies, &cboPrinter}) {
    list->onClick = [this] { remake(); };
  }
  btnPrevious.onClick = [this] { turnTo(sheet_ - 1); };
  btnNext.onClick = [this] { turnTo(sheet_ + 1); };
  btnPdf.onClick = [this] { finish(onPdf); };
  btnPrint.onClick = [this] { finish(onPrint); };
  btnClose.onClick = [this] { hide(); };
}

void PapersDialog::show(PapersSource source, Paper paper) {
  source_ = std::move(source);
  btnPdf.setVisible(static_cast<bool>(onPdf));
  filling_ = true;
  cboPaper.setIndex(static_cast<int>(paper));
  cboPackages.setIndex(source_.marked.size() > 1 ? markedPackages : allPackages);
  cboSize.setIndex(keptRow(settings_, "Size", 0, cboSize.count()));
  cboCopies.setIndex(keptRow(settings_, "Copies", 0, cboCopies.count()));
  cboPrinter.setIndex(keptRow(settings_, "Printer", 1, cboPrinter.count()));
  filling_ = false;
  remake();
  showModal();
}

const papers::Page* PapersDialog::page() const {
  return sheet_ < pages_.size() ? &pages_[sheet_] : nullptr;
}

std::string PapersDialog::title() const {
  return titleOf(paperWords(cboPaper.index()), source_.advice.header.number);
}

std::string PapersDialog::fileName() const {
  return paperFileName(paperWords(cboPaper.index()), source_.advice.header.number, ".pdf");
}

std::string paperFileName(std::string_view paper, std::string_view number,
                          std::string_view ending) {
  std::string name = replaceAll(titleOf(paper, number), " ", "_");
  for (const char* separator : {"/", "\\", ":", "*", "?", "\"", "<", ">", "|"}) {
    name = replaceAll(name, separator, "_");
  }
  return joined({withoutControlCharacters(name), ending});
}

std::vector<std::size_t> PapersDialog::chosenNumbers() const {
  if (cboPackages.index() == markedPackages) return source_.marked;
  std::vector<std::size_t> numbers;
  for (std::size_t i = 0; i < source_.advice.packages.size(); ++i) {
    const bool isDone = doneNumbers_.contains(source_.advice.packages[i].serialNumber);
    if (cboPackages.index() == allPackages || !isDone) numbers.push_back(i + 1);
  }
  return numbers;
}

void PapersDialog::makeLabels() {
  const std::vector<std::size_t> numbers = chosenNumbers();
  if (numbers.empty()) return;
  const papers::LabelSet set =
      papers::labelsOf(papers::shipmentOf(source_.advice), source_.names, numbers);
  papers::LabelOptions options;
  if (cboSize.index() > 0) options.size = cboSize.index() == 1 ? papers::a5 : papers::a6;
  if (cboCopies.index() > 0) options.copies = cboCopies.index();
  options.dotsPerInch = resolutions[static_cast<std::size_t>(cboPrinter.index())];
  pages_ = papers::labelPages(set.labels, options, measure_, encoder_);
  for (const papers::Label& label : set.labels) shownNumbers_.push_back(label.serialNumber);
  std::string notes;
  for (std::size_t i = 0; i < set.withoutLabel.size() && i < 3; ++i) {
    notes += (i == 0 ? "Без этикетки: " : "; ") + set.withoutLabel[i];
  }
  if (set.withoutLabel.size() > 3) {
    notes += "; и ещё " + std::to_string(set.withoutLabel.size() - 3);
  }
  lblNotes.setCaption(notes);
}

void PapersDialog::remake() {
  if (filling_) return;
  pages_.clear();
  shownNumbers_.clear();
  lblNotes.setCaption("");
  for (DropDownList* list : {&cboSize, &cboCopies, &cboPrinter}) list->setEnabled(areLabels());
  const auto paper = static_cast<Paper>(cboPaper.index());
  cboPackages.setEnabled(paper != Paper::packingList);
  const papers::Shipment shipment = papers::shipmentOf(source_.advice);
  if (paper == Paper::labels) {
    makeLabels();
  } else if (paper == Paper::packingList) {
    pages_ = papers::packingListPages(shipment, source_.names, measure_);
  } else if (const std::vector<std::size_t> numbers = chosenNumbers(); !numbers.empty()) {
    pages_ = papers::packageSheetPages(shipment, source_.names, numbers, measure_);
  }
  if (pages_.empty() && lblNotes.caption().empty()) {
    lblNotes.setCaption(source_.advice.packages.empty() ? "В документе нет упаковок."
                                                        : "Таких упаковок нет.");
  }
  setCaption(title());
  btnPdf.setEnabled(!pages_.empty());
  btnPrint.setEnabled(!pages_.empty());
  keepSettings();
  turnTo(0);
}

void PapersDialog::turnTo(std::size_t sheet) {
  sheet_ = sheet < pages_.size() ? sheet : 0;
  const std::size_t shown = pages_.empty() ? 0 : sheet_ + 1;
  lblSheet.setCaption("лист " + std::to_string(shown) + " из " + std::to_string(pages_.size()));
  btnPrevious.setEnabled(sheet_ > 0);
  btnNext.setEnabled(shown < pages_.size());
  if (onSheet) onSheet();
}

void PapersDialog::finish(const std::function<bool()>& deed) {
  sentNumbers_ = shownNumbers_;
  if (deed && deed()) noteDone();
}

void PapersDialog::noteDone() {
  doneNumbers_.insert(sentNumbers_.begin(), sentNumbers_.end());
  sentNumbers_.clear();
}

void PapersDialog::printingEnded(const std::function<Choice(const Question& question)>& ask) {
  if (sentNumbers_.empty()) return;
  const Question question{
      .text =
          "Этикетки напечатаны?\r\nНапечатанных больше не будет среди тех, что «Ещё без "
          "этикетки».",
      .choices = {Choice::printed, Choice::notPrinted},
      .harmless = Choice::notPrinted};
  if (ask(question) == Choice::printed) noteDone();
  sentNumbers_.clear();
}

void PapersDialog::keepSettings() {
  const auto keep = [this](const char* key, const DropDownList& list) {
    const std::string row = std::to_string(list.index());
    if (settings_.read(deskSettings, settingsSection, key, "") == row) return;
    // What the user has chosen counts for this once even where it can't be kept.
    caughtError([&] { settings_.write(deskSettings, settingsSection, key, row); });
  };
  keep("Size", cboSize);
  keep("Copies", cboCopies);
  keep("Printer", cboPrinter);
}

}  // namespace awizo
