#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "numbers/number_range.h"
#include "platform/clock.h"
#include "platform/shared_store.h"

namespace awizo {

/// What the record says of a number.
struct NumberUse {
  std::string date;      ///< "yyyy-mm-dd"
  std::string document;  ///< its number; empty where it had none yet
};

/// Where a range that is stored in place of another of the same numbers goes on.
enum class NextSerial {
  asSaid,
  /// Where the other has come to by now, if that is further on.
  notBack,
};

/// Gives numbers of the firm's range, none of them twice: they are taken while no other program
/// takes any, and stored as taken before anyone sees them. All that were given or used are on
/// record with date and document.
class GivenNumbers {
 public:
  GivenNumbers(SharedStore& store, const Clock& clock) : store_(store), clock_(clock) {}

  /// The range; none where none was set, or where the store holds something else.
  std::optional<NumberRange> range();
  void setRange(const NumberRange& range, NextSerial next = NextSerial::asSaid);

  /// So many numbers in one step, fewer where the range ends. Passed over are those that were given
  /// or that another document has used within twelve months, and `own`, which the document has
  /// already.
  std::vector<std::string> take(std::size_t count, std::string_view document,
                                const std::set<std::string>& own = {});

  /// Hands the last serials of the range, so many, to another place, which takes them for its own
  /// range; fewer where fewer are left behind those given, nothing where none is. This range ends
  /// before them from now on, and whoever makes it longer again finds them passed over.
  std::optional<NumberRange> handOut(std::uint64_t count, std::string_view place);
  /// All parts that were handed out, in their order.
  std::vector<HandedPart> handedOut();

  /// Puts on record that the document has these numbers; what is on record for it stays once.
  void noteUse(const std::vector<std::string>& numbers, std::string_view document);

  /// Which other document has used the number within twelve months; the last one. Numbers that were
  /// only given aren't told of: a document has them before it has its own number, by which it would
  /// be taken for another.
  std::optional<NumberUse> useElsewhere(std::string_view number, std::string_view document);

 private:
  struct Entry {
    bool isUsed = false;  ///< else it was given only
    NumberUse use;
  };

  /// The last entry of the number that is within twelve months and fits; null for none.
  template <class Fits>
  const Entry* lastEntry(const std::string& number, const Fits& fits) const;
  /// The same of what was read already.
  std::optional<NumberUse> knownElsewhere(const std::string& number,
                                          std::string_view document) const;
  bool wasGiven(const std::string& number) const;
  /// The first serial after all that were given, not before the range's next one.
  std::uint64_t afterGiven(const NumberRange& range) const;
  /// Reads what others have added to the record since.
  void catchUp();
  void takeLines(std::string_view lines);
  void record(std::string_view kind, const std::vector<std::string>& numbers,
              std::string_view document);
  std::string today() const;
  bool isWithinTwelveMonths(std::string_view date) const;

  SharedStore& store_;
  const Clock& clock_;
  std::unordered_map<std::string, std::vector<Entry>> entries_;
  std::uint64_t readSoFar_ = 0;
};

}  // namespace awizo
