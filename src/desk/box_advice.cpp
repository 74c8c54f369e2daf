#include "desk/box_advice.h"

#include <array>
#include <string_view>

namespace awizo {
namespace {

struct Advice {
  std::string_view error;
  std::string_view words;
};

constexpr std::array advices{
    // The service.
    Advice{"The system cannot locate the resource specified.",
           "Служба недоступна: нет связи или её адрес неверен. Ничего не отправлено. Проверьте "
           "связь и повторите."},
    Advice{"The download of the specified resource has failed.",
           "Связь прервалась, ответа нет. Если вы отправляли документ, он мог дойти: спросите "
           "партнёра, прежде чем отправлять ещё раз."},
    Advice{"Security certificate required to access this resource is invalid.",
           "Сертификат службы не подтверждён. Ничего не отправлено. Проверьте дату на компьютере; "
           "если она верна, сообщите партнёру."},
    Advice{"The data necessary to complete this operation is not yet available.",
           "Ответа службы нет; причина — в сообщении перед этим."},
    // Files.
    Advice{"Permission denied",
           "Нет прав на этот файл или эту папку. Ничего не записано и не прочитано. Выберите "
           "папку, которая принадлежит вам, например «Документы»."},
    Advice{"Path not found", "Такой папки нет. Ничего не записано. Выберите другую папку."},
    Advice{"File not found", "Такого файла нет: его удалили или переименовали."},
    Advice{"Disk full",
           "На диске нет места. Прежний файл цел, новый не записан. Освободите место или выберите "
           "другой диск."},
    Advice{"Device unavailable", "Диск недоступен. Подключите его или выберите другой."},
    Advice{"Disk not ready", "Диск не готов. Подключите его или выберите другой."},
    Advice{"Path/File access error",
           "Файл или папка недоступны: заняты другой программой или защищены. Ничего не записано. "
           "Выберите другое имя или другую папку."},
    Advice{"Bad file name or number",
           "Такое имя файла не подходит. Ничего не записано. Дайте другое имя."},
};

/// What the service answers in place of "OK" follows these words; "-1" is no answer at all.
constexpr std::string_view refusal = "Произошла ошибка:";

std::string_view wordsOnRefusal(std::string_view status) {
  if (status == "-1") {
    return "Служба не подтвердила документ. Если связь прервалась, он мог дойти: спросите "
           "партнёра, прежде чем отправлять ещё раз. Документ остался в окне.";
  }
  return "Служба не приняла документ. Он остался в окне: исправьте, на что она указала, и "
         "отправьте ещё раз.";
}

}  // namespace

std::string adviceOn(const MessageBox& box) {
  if (box.icon != BoxIcon::critical) return "";
  const std::string_view text = box.text;
  if (text.starts_with(refusal)) return std::string(wordsOnRefusal(text.substr(refusal.size())));
  for (const Advice& advice : advices) {
    if (advice.error == text) return std::string(advice.words);
  }
  return "";
}

}  // namespace awizo
