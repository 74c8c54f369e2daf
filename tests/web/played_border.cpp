#include "web/played_border.h"

#include <algorithm>

namespace awizo::web::test {

namespace {

/// The border is a pair of functions, so who stands behind it is known to all.
PlayedBorder* current = nullptr;

}  // namespace

PlayedBorder::PlayedBorder(Answer given) : answer(std::move(given)) { current = this; }

PlayedBorder::~PlayedBorder() { current = nullptr; }

}  // namespace awizo::web::test

using awizo::web::AskedField;
using awizo::web::Fields;

extern "C" {
void awizoPageAsk(const AskedField* question, std::size_t count, Fields* answer);
void awizoPageAskNow(const AskedField* question, std::size_t count, Fields* answer);
double awizoPageLocalSeconds();
char* awizoAddField(Fields* answer, std::size_t size);
}

double awizoPageLocalSeconds() { return awizo::web::test::current->localSeconds; }

void awizoPageAsk(const AskedField* question, std::size_t count, Fields* answer) {
  Fields asked;
  for (std::size_t at = 0; at < count; ++at)
    asked.emplace_back(question[at].bytes, question[at].size);
  awizo::web::test::PlayedBorder& border = *awizo::web::test::current;
  border.questions.push_back(asked);
  for (const std::string& field : border.answer(asked)) {
    std::ranges::copy(field, awizoAddField(answer, field.size()));
  }
}

void awizoPageAskNow(const AskedField* question, std::size_t count, Fields* answer) {
  awizoPageAsk(question, count, answer);
}
