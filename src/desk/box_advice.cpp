#include "desk/box_advice.h"

#include <array>
#include <string_view>

#include "platform/run_time_error.h"
#include "service/upper/sending/sending.h"

namespace awizo {
namespace {

struct Advice {
  RunTimeError (*error)();
  std::string_view words;
};

constexpr std::array advices{
    // The service.
    Advice{errors::hostNotFound,
           "Служба недоступна: нет связи или её адрес неверен. Ничего не отправлено. Проверьте "
           "связь и повторите."},
    Advice{errors::downloadFailed,
           "Связь прервалась, ответа нет. Если вы отправляли документ, он мог дойти: спросите "
           "партнёра, прежде чем отправлять ещё раз."},
    Advice{errors::badCertificate,
           "Сертификат службы не подтверждён. Ничего не отправлено. Проверьте дату на компьютере; "
           "если она верна, сообщите партнёру."},
    Advice{errors::replyNotAvailable, "Ответа службы нет; причина — в сообщении перед этим."},
    // Files.
    Advice{errors::permissionDenied,
           "Нет прав на этот файл или эту папку. Ничего не записано и не прочитано. Выберите "
           "папку, которая принадлежит вам, например «Документы»."},
    Advice{errors::pathNotFound, "Такой папки нет. Ничего не записано. Выберите другую папку."},
    Advice{errors::fileNotFound, "Такого файла нет: его удалили или переименовали."},
    Advice{errors::diskFull,
           "На диске нет места. Прежний файл цел, новый не записан. Освободите место или выберите "
           "другой диск."},
    Advice{errors::deviceUnavailable, "Диск недоступен. Подключите его или выберите другой."},
    Advice{errors::diskNotReady, "Диск не готов. Подключите его или выберите другой."},
    Advice{errors::pathFileAccess,
           "Файл или папка недоступны: заняты другой программой или защищены. Ничего не записано. "
           "Выберите другое имя или другую папку."},
    Advice{errors::badFileName,
           "Такое имя файла не подходит. Ничего не записано. Дайте другое имя."},
};

std::string_view wordsOnRefusal(std::string_view status) {
  if (status == noStatus) {
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
  if (text.starts_with(refusalWords)) {
    return std::string(wordsOnRefusal(text.substr(refusalWords.size())));
  }
  for (const Advice& advice : advices) {
    if (advice.error().number() == box.error) return std::string(advice.words);
  }
  return "";
}

}  // namespace awizo
