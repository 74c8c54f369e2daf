#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "journal/record.h"

namespace awizo::journal {

// A file of records: a line that names the format, then records one after another, each with the
// length and the checksum of its bytes. A file that somebody broke off ends in a torn record; all
// before it is good. The first format had no texts beside the file.

/// With what a file begins.
std::string fileBeginning();

/// Appends a record as it stands in a file.
void frame(const Record& record, std::string& file);
std::string framed(const Record& record);

/// What of a file's bytes is whole.
struct WholeRecords {
  std::vector<Record> records;
  std::size_t length = 0;  ///< bytes up to the end of the last whole record
};

/// Raises error 13 where the bytes don't begin as a file of a known format does.
WholeRecords wholeRecords(std::string_view bytes);

}  // namespace awizo::journal
