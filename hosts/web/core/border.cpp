#include "hosts/web/core/border.h"

#include <charconv>
#include <cstdint>
#include <string_view>

#include "platform/run_time_error.h"

#ifdef __wasm__
#define AWIZO_IMPORT(name) __attribute__((import_module("page"), import_name(name)))
#define AWIZO_EXPORT(name) __attribute__((export_name(name)))
#else
#define AWIZO_IMPORT(name)
#define AWIZO_EXPORT(name)
#endif

using awizo::web::AskedField;
using awizo::web::Fields;

extern "C" {
AWIZO_IMPORT("ask") void awizoPageAsk(const AskedField* question, std::size_t, Fields* answer);
AWIZO_IMPORT("askNow")
void awizoPageAskNow(const AskedField* question, std::size_t, Fields* answer);
AWIZO_IMPORT("localSeconds") double awizoPageLocalSeconds();
AWIZO_EXPORT("addField") char* awizoAddField(Fields* answer, std::size_t size);
}

char* awizoAddField(Fields* answer, std::size_t size) {
  return answer->emplace_back(size, '\0').data();
}

namespace awizo::web {

namespace {

template <class Ask, class Question>
Fields answerOf(Ask ask, const Question& question) {
  const std::vector<AskedField> asked(question.begin(), question.end());
  Fields answer;
  ask(asked.data(), asked.size(), &answer);
  return answer;
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

Fields ask(const Fields& question) { return answerOf(awizoPageAsk, question); }

Fields askNow(const Fields& question) { return answerOf(awizoPageAskNow, question); }

Fields askNow(std::initializer_list<std::string_view> question) {
  return answerOf(awizoPageAskNow, question);
}

double localSeconds() { return awizoPageLocalSeconds(); }

Fields checked(Fields answer) {
  const std::string_view text = answer.at(0);
  std::int32_t number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  if (number != 0) throw errorOf(number);
  answer.erase(answer.begin());
  return answer;
}

}  // namespace awizo::web
