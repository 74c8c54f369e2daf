#include "hosts/web/core/border.h"

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "platform/run_time_error.h"

#ifdef __wasm__
#define AWIZO_IMPORT(name) __attribute__((import_module("page"), import_name(name)))
#else
#define AWIZO_IMPORT(name)
#endif

extern "C" {
// They take a packed question, and return a packed answer in memory of malloc.
AWIZO_IMPORT("ask") char* awizoPageAsk(const char* question, std::size_t size);
AWIZO_IMPORT("askNow") char* awizoPageAskNow(const char* question, std::size_t size);
}

namespace awizo::web {

namespace {

void appendCount(std::string& bytes, std::size_t count) {
  const auto word = static_cast<std::uint32_t>(count);
  bytes.append(reinterpret_cast<const char*>(&word), sizeof word);
}

/// The number of fields, then of each its length and its bytes.
std::string packed(const Fields& fields) {
  std::string bytes;
  appendCount(bytes, fields.size());
  for (const std::string& field : fields) {
    appendCount(bytes, field.size());
    bytes += field;
  }
  return bytes;
}

std::uint32_t takeCount(const char*& bytes) {
  std::uint32_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  bytes += sizeof word;
  return word;
}

Fields unpacked(char* answer) {
  const char* bytes = answer;
  Fields fields(takeCount(bytes));
  for (std::string& field : fields) {
    const std::uint32_t size = takeCount(bytes);
    field.assign(bytes, size);
    bytes += size;
  }
  std::free(answer);
  return fields;
}

RunTimeError errorOf(std::int32_t number) {
  for (const auto make : {&errors::outOfMemory, &errors::badFileName, &errors::fileNotFound,
                          &errors::diskFull, &errors::deviceUnavailable, &errors::permissionDenied,
                          &errors::diskNotReady, &errors::pathNotFound, &errors::hostNotFound,
                          &errors::downloadFailed, &errors::badCertificate}) {
    RunTimeError error = make();
    if (error.number() == number) return error;
  }
  return errors::pathFileAccess();
}

}  // namespace

Fields ask(const Fields& question) {
  const std::string bytes = packed(question);
  return unpacked(awizoPageAsk(bytes.data(), bytes.size()));
}

Fields askNow(const Fields& question) {
  const std::string bytes = packed(question);
  return unpacked(awizoPageAskNow(bytes.data(), bytes.size()));
}

Fields checked(Fields answer) {
  const std::string_view text = answer.at(0);
  std::int32_t number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  if (number != 0) throw errorOf(number);
  answer.erase(answer.begin());
  return answer;
}

}  // namespace awizo::web
