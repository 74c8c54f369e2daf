#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace awizo::journal {

/// What a record is. The numbers stand in files: none is ever given a new meaning.
enum class RecordKind : std::uint8_t {
  header = 1,  ///< names and values by turns: version, locale, what the host was asked at its start
  outcome = 2,  ///< what the surroundings answered
  fact = 3,     ///< what they answered to a question that may be asked at any time
  act = 4,      ///< of the user
  hostAct = 5,  ///< of the host: its name and what it needs
  undone = 6,   ///< the act before was refused and changed nothing
  answer = 7,   ///< to a message box
  viewHeight = 8,
  ready = 9,    ///< the control waits for the user
  digest = 10,  ///< of the whole state
  /// Goes out now, and whether it asks for the order, which older records don't say; without an
  /// outcome nobody knows whether it arrived.
  request = 11,
  summary = 12,  ///< what a person wants to know of the work so far
  closed = 13,   ///< the host hid the modal form that waited, without an act of the user
  /// The state is again what it was after an act, counted over the whole file, acts that were taken
  /// back too; 0: before the first. Then whether a file was written since.
  returned = 14,
  stepBegins = 15,  ///< what comes is taken back as one: its name
  stepEnds = 16,
  outcomeBeside = 17,  ///< an outcome whose text lies beside the file, under the name that is here
};

/// One thing that happened. Which numbers and texts it has is said where its kind is written.
struct Record {
  RecordKind kind{};
  std::vector<std::int64_t> numbers;
  std::vector<std::string> texts;
  bool operator==(const Record&) const = default;
};

/// Appends a record's bytes, which say nothing of their length. A reply can be large, so that
/// nobody holds it once more than needed.
void encode(const Record& record, std::string& bytes);

/// The record of these bytes; error 13 for bytes that are none.
Record decoded(std::string_view bytes);

/// Whether it is something that the user or the host did, an answer included.
bool isDeed(const Record& record);

}  // namespace awizo::journal
