#include "journal/unfinished_work.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "foundation/date_text.h"
#include "journal/loading.h"
#include "platform/run_time_error.h"
#include "tables/columns/columns.h"

namespace awizo::journal {
namespace {

constexpr std::size_t textsOfASummary = 6;

std::optional<int> countIn(const std::string& text) {
  int count = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, count);
  if (read.ec != std::errc{} || read.ptr != end || count < 0) return std::nullopt;
  return count;
}

/// Newest first, those in use left out.
std::vector<FoundRecord> leftBehind(RecordFolder& folder) {
  std::vector<FoundRecord> records = folder.records();
  std::erase_if(records, [](const FoundRecord& record) { return record.inUse; });
  std::ranges::sort(records, [](const FoundRecord& left, const FoundRecord& right) {
    return left.changed != right.changed ? left.changed > right.changed : left.name > right.name;
  });
  return records;
}

/// What is shared counts once.
std::uint64_t sizeOf(const std::vector<FoundRecord>& records) {
  std::map<std::string, std::uint64_t> texts;
  std::uint64_t bytes = 0;
  for (const FoundRecord& record : records) {
    bytes += record.size;
    for (const TextBeside& text : record.texts) texts[text.name] = text.size;
  }
  for (const auto& text : texts) bytes += text.second;
  return bytes;
}

}  // namespace

WorkSummary summaryOf(const AwizoWysylki& control, const Clock& clock,
                      const std::function<bool()>& wouldBeLost) {
  const AwizoForm& form = control.form;
  WorkSummary summary;
  summary.number = form.txtNrAwiza.text();
  summary.orderNumber = form.txtNrZam.text();
  summary.time = hourMinute(clock.now().time);
  summary.lines = control.editor.session.LineCount;
  for (int row = 1; row <= summary.lines && row < form.grdPozycje.rows(); ++row) {
    if (!form.grdPozycje.cell(row, GRD_POZ_PACK_REFS).empty()) ++summary.packedLines;
  }
  const bool isSent = !form.LastSentNumber.empty() && form.LastSentNumber == summary.number;
  summary.isUnsent = (summary.lines > 0 && !isSent) || wouldBeLost();
  return summary;
}

std::vector<std::string> textsOf(const WorkSummary& summary) {
  return {summary.number,
          summary.orderNumber,
          summary.time,
          std::to_string(summary.lines),
          std::to_string(summary.packedLines),
          summary.isUnsent ? "1" : "0"};
}

std::optional<WorkSummary> summaryIn(const std::vector<std::string>& texts) {
  if (texts.size() < textsOfASummary) return std::nullopt;
  const std::optional<int> lines = countIn(texts[3]);
  const std::optional<int> packedLines = countIn(texts[4]);
  if (!lines || !packedLines) return std::nullopt;
  return WorkSummary{texts[0], texts[1], texts[2], *lines, *packedLines, texts[5] == "1"};
}

std::optional<UnfinishedWork> unfinishedWork(RecordFolder& folder) {
  std::vector<FoundRecord> records;
  // The session's own record will tell of a folder that nobody can use.
  caughtError([&] { records = leftBehind(folder); });
  std::stable_partition(records.begin(), records.end(),
                        [](const FoundRecord& record) { return !record.tried; });
  for (const FoundRecord& record : records) {
    try {
      const RecordedSession session = recordedSession(folder.read(record.name));
      const std::optional<WorkSummary> summary = summaryIn(session.summary);
      if (session.orderArrived || (summary && summary->isUnsent)) {
        return UnfinishedWork{record.name, summary.value_or(WorkSummary{}),
                              session.requestUnanswered, session.orderArrived, record.tried};
      }
      folder.remove(record.name);
    } catch (const RunTimeError&) {
      // Somebody may still make something of it.
    }
  }
  return std::nullopt;
}

void keepWithin(RecordFolder& folder, std::uint64_t mostBytes) {
  while (sizeOf(folder.records()) > mostBytes) {
    const std::vector<FoundRecord> records = leftBehind(folder);
    if (records.empty()) return;
    folder.remove(records.back().name);
  }
}

}  // namespace awizo::journal
