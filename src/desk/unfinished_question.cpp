#include "desk/unfinished_question.h"

#include "platform/text.h"

namespace awizo {

std::string unfinishedWords(const journal::UnfinishedWork& work) {
  const journal::WorkSummary& summary = work.summary;
  const std::string_view nameless = work.orderArrived ? "полученный заказ" : "документ без номера";
  std::string words = summary.number.empty() ? std::string(nameless) : summary.number;
  if (!summary.time.empty()) words += joined({" от ", summary.time});
  if (summary.lines > 0) {
    words += joined({", упаковано ", std::to_string(summary.packedLines), " из ",
                     std::to_string(summary.lines)});
  }
  return words;
}

Question unfinishedQuestion(const journal::UnfinishedWork& work) {
  Question question{.choices = {Choice::goOn, Choice::startAfresh, Choice::later},
                    .harmless = Choice::later};
  question.text = joined({"Продолжить ", unfinishedWords(work), "?"});
  if (work.mayHaveArrived) {
    question.text +=
        "\r\n\r\nЕго отправляли, но ответ службы не пришёл: он мог дойти до получателя.";
  }
  question.text +=
      "\r\n\r\n«Начать заново» удаляет эту работу; «Отложить» оставляет её до следующего запуска.";
  return question;
}

}  // namespace awizo
