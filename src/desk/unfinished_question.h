#pragma once

#include <string>

#include "desk/question.h"
#include "journal/unfinished_work.h"

namespace awizo {

/// "ТН-6 от 23:14, упаковано 12 из 25"
std::string unfinishedWords(const journal::UnfinishedWork& work);

/// Whether to go on with work that was left behind: "Продолжить ТН-6 от 23:14, упаковано 12 из 25?"
Question unfinishedQuestion(const journal::UnfinishedWork& work);

}  // namespace awizo
