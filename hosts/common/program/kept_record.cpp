#include "hosts/common/program/kept_record.h"

#include <cstdint>

#include "journal/loading.h"
#include "journal/record_file.h"
#include "journal/unfinished_work.h"
#include "platform/run_time_error.h"

namespace awizo {
namespace {

/// Some ten sessions with the largest catalogue.
constexpr std::uint64_t mostBytesKept = 250'000'000;

}  // namespace

KeptRecord::KeptRecord(RecordFolder* folder, const RecordHeader& header,
                       const std::function<void(const RunTimeError&)>& onTrouble)
    : folder_(folder) {
  if (folder_ == nullptr) return;
  try {
    journal::keepWithin(*folder_, mostBytesKept);
    record_ = folder_->create();
    record_.file->append(journal::fileBeginning() + journal::framed(journal::headerRecord(header)));
  } catch (const RunTimeError& error) {
    record_.file.reset();
    onTrouble(error);
  }
}

KeptRecord::~KeptRecord() {
  if (record_.file == nullptr) return;
  record_.file.reset();
  remove(record_.name);
}

void KeptRecord::forgetReplayed(const std::string& name) {
  // Without a whole record of its own, the old one is all that is left of the work.
  if (name.empty() || record_.file == nullptr) return;
  try {
    record_.file->flush();
  } catch (const RunTimeError&) {
    return;
  }
  remove(name);
}

void KeptRecord::remove(const std::string& name) {
  try {
    folder_->remove(name);
  } catch (const RunTimeError&) {
    // It will be offered again, which is better than lost.
  }
}

}  // namespace awizo
