#pragma once

#include <functional>
#include <string>

#include "hosts/common/program/recorded_options.h"
#include "platform/record_folder.h"
#include "platform/run_time_error.h"

namespace awizo {

/// The record of one session in the user's folder. It stays there when the program ends without
/// having ended the session.
class KeptRecord {
 public:
  /// Makes a new record, unless there is no folder. What goes wrong is told to `onTrouble` once.
  KeptRecord(RecordFolder* folder, const RecordHeader& header,
             const std::function<void(const RunTimeError&)>& onTrouble);
  /// The session has ended as its user wanted: nothing of it is left.
  ~KeptRecord();
  KeptRecord(const KeptRecord&) = delete;
  KeptRecord& operator=(const KeptRecord&) = delete;

  GrowingFile* file() const { return record_.file.get(); }
  TextsBeside* texts() const { return record_.texts.get(); }
  /// The work that was replayed is in this record now.
  void forgetReplayed(const std::string& name);

 private:
  void remove(const std::string& name);

  RecordFolder* folder_;
  NewRecord record_;
};

}  // namespace awizo
