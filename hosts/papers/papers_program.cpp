#include "hosts/papers/papers_program.h"

#include <fcntl.h>

#include <filesystem>
#include <ostream>
#include <stdexcept>

#include "adapters/libxml2/libxml2.h"
#include "adapters/posix/descriptor.h"
#include "adapters/posix/paths/paths.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/replacing.h"
#include "adapters/qt_paper/qt_paper.h"
#include "adapters/zint/zint_encoder.h"
#include "desk/papers_source.h"
#include "formats/advice_of_document.h"
#include "papers/package_numbers.h"
#include "papers/packing_csv.h"
#include "papers/packing_list.h"

namespace awizo {
namespace {

/// A run-time error in words of a user who gave the path.
[[noreturn]] void fail(const std::string& path, const RunTimeError& error, const char* deed) {
  const std::string reason = [&]() -> std::string {
    switch (error.number()) {
      case 53:
        return "нет такого файла";
      case 61:
        return "диск полон";
      case 70:
        return "нет прав доступа";
      case 75:
        return "это не файл, или доступа к нему нет";
      case 76:
        return "нет такой папки";
      default:
        return error.description();
    }
  }();
  throw std::runtime_error(path + ": не " + deed + ": " + reason);
}

DespatchAdvice adviceIn(const std::string& path) {
  const std::unique_ptr<XmlDocument> document = Libxml2().createDocument();
  std::string bytes;
  try {
    bytes = posix::Descriptor(path, O_RDONLY | O_CLOEXEC).readAll();
  } catch (const RunTimeError& error) {
    fail(path, error, "читается");
  }
  if (!document->loadBytes(bytes)) {
    const std::int64_t line = document->failedAtLine();
    throw std::runtime_error(path + ": это не XML, или файл оборван" +
                             (line > 0 ? " (строка " + std::to_string(line) + ")" : ""));
  }
  if (!document->node().selectSingle("/Document-DespatchAdvice")) {
    throw std::runtime_error(path + ": это не уведомление об отгрузке, а «" +
                             document->root().name() + "»");
  }
  return adviceOf(*document);
}

/// The names that the folder's files tell of the advice's own parties.
papers::Names namesFrom(const std::string& folder, const AdviceHeader& header) {
  if (folder.empty()) return {};
  PosixFiles files;
  const std::string path = posix::classicPath(std::filesystem::absolute(folder).string());
  if (!files.folderExists(path)) throw std::runtime_error(folder + ": нет такой папки");
  return namesInFolder(Libxml2(), files, path, header);
}

std::vector<std::size_t> pickedPackages(const PapersOptions& options,
                                        const papers::Shipment& shipment) {
  if (options.packages.empty()) return {};
  const std::size_t count = shipment.packages.size();
  const auto numbers = papers::packageNumbers(options.packages, count);
  if (!numbers) {
    throw std::runtime_error("--packages " + options.packages + ": в документе упаковки с 1 по " +
                             std::to_string(count) + "; пишите, например, 2-5,9");
  }
  return *numbers;
}

void write(const std::string& path, const std::string& bytes) {
  try {
    posix::replaceFile(path, bytes);
  } catch (const RunTimeError& error) {
    fail(path, error, "записан");
  }
}

int makeLabels(const PapersOptions& options, const papers::Shipment& shipment,
               const papers::Names& names, std::ostream& notes) {
  const papers::LabelSet set = papers::labelsOf(shipment, names, pickedPackages(options, shipment));
  for (const std::string& left : set.withoutLabel) notes << left << '\n';
  if (set.labels.empty()) {
    throw std::runtime_error(options.file + ": этикеток нет: ни у одной из упаковок нет номера");
  }
  const papers::Pages pages =
      papers::labelPages(set.labels, options.labels, QtTextMeasure(), ZintEncoder());
  write(options.out, pdfOf(pages, "Этикетки " + shipment.advice->header.number));
  return set.withoutLabel.empty() ? exitPaperMade : exitLabelsLeftOut;
}

int makeList(const PapersOptions& options, const papers::Shipment& shipment,
             const papers::Names& names) {
  const QtTextMeasure measure;
  const papers::Pages pages =
      options.sheets
          ? papers::packageSheetPages(shipment, names, pickedPackages(options, shipment), measure)
          : papers::packingListPages(shipment, names, measure);
  write(options.out, pdfOf(pages, "Упаковочный лист " + shipment.advice->header.number));
  return exitPaperMade;
}

}  // namespace

int makePaper(const PapersOptions& options, std::ostream& notes) {
  const DespatchAdvice advice = adviceIn(options.file);
  if (advice.packages.empty() && (options.kind == PaperKind::labels || options.sheets)) {
    throw std::runtime_error(options.file + ": в документе нет упаковок");
  }
  const papers::Shipment shipment = papers::shipmentOf(advice);
  const papers::Names names = namesFrom(options.folder, advice.header);
  switch (options.kind) {
    case PaperKind::labels:
      return makeLabels(options, shipment, names, notes);
    case PaperKind::list:
      return makeList(options, shipment, names);
    case PaperKind::csv:
      write(options.out, papers::packingCsv(shipment));
      return exitPaperMade;
  }
  return exitNoPaper;
}

}  // namespace awizo
