#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "fuzz/targets.h"
#include "journal/loading.h"
#include "journal/record_file.h"
#include "tests/support/control/taped_control.h"

namespace awizo::fuzz {

namespace {

constexpr int typeMismatch = 13;

/// The user's turn in a box or a dialog: where a target's interest ends.
struct UsersTurn {};

void replay(std::vector<journal::Record> records) {
  test::TapedControl session(nullptr, std::move(records));
  session.desk.face.actUnscripted = [](Form&) { throw UsersTurn{}; };
  session.desk.face.answerUnscripted = [](const MessageBox&) -> Answer { throw UsersTurn{}; };
  try {
    session.recording->start();
  } catch (const journal::ReplayDiffers&) {
  } catch (const UsersTurn&) {
  }
}

/// The session of these bytes; none where they hold none.
std::vector<journal::Record> recordsIn(const std::string& file) {
  try {
    return journal::recordedSession(file).records;
  } catch (const RunTimeError& error) {
    require(error.number() == typeMismatch, "what is no record is told as such");
    return {};
  }
}

/// The bytes cut into records at line ends, each with its length and checksum, so that chance gets
/// past these.
std::string madeSound(std::string_view bytes) {
  std::string file = journal::fileBeginning() + journal::framed(journal::headerRecord({}));
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    try {
      file += journal::framed(journal::decoded(bytes.substr(0, end)));
    } catch (const RunTimeError&) {
      // No record; the next may be one.
    }
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return file + journal::framed({journal::RecordKind::ready, {0}, {}});
}

}  // namespace

void records(std::string_view bytes) {
  replay(recordsIn(std::string(bytes)));
  replay(recordsIn(madeSound(bytes)));
}

}  // namespace awizo::fuzz
