#include "adapters/curl/request.h"

#include "adapters/curl/reply_text.h"
#include "platform/run_time_error.h"

namespace awizo::curl {
namespace {

/// Whether the text can be part of a header without ending it.
bool staysOnItsLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == text.npos;
}

bool isToken(std::string_view text) {
  return !text.empty() && text.find_first_of(":; \t") == text.npos && staysOnItsLine(text);
}

}  // namespace

void Request::open(std::string_view method, std::string_view url) {
  if (!isToken(method)) throw errors::invalidProcedureCall();
  outgoing_ = {std::string(method), std::string(url), {}};
  reply_.reset();
}

void Request::setHeader(std::string_view name, std::string_view value) {
  if (!isToken(name) || !staysOnItsLine(value)) throw errors::invalidProcedureCall();
  // libcurl leaves out a header that has nothing but white space after its colon; a semicolon in
  // the colon's place means a header without a value.
  const bool isBlank = value.find_first_not_of(" \t") == value.npos;
  std::string line(name);
  outgoing_.headers.push_back(isBlank ? line + ";" : line + ": " + std::string(value));
}

void Request::send(std::string_view body) {
  reply_.reset();
  Reply reply = exchange(outgoing_, body, options_);
  reply_ = replyText(std::move(reply.bytes), reply.contentType);
}

std::string Request::responseText() {
  if (!reply_) throw errors::replyNotAvailable();
  return *std::exchange(reply_, std::nullopt);
}

}  // namespace awizo::curl
