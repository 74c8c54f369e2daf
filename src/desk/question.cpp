#include "desk/question.h"

namespace awizo {

std::string_view wordsOf(Choice choice) {
  switch (choice) {
    case Choice::save:
      return "&Сохранить…";
    case Choice::letGo:
      return "&Не сохранять";
    case Choice::goOn:
      return "&Продолжить";
    case Choice::wait:
      return "&Подождать";
    case Choice::leave:
      return "&Закрыть сейчас";
    case Choice::send:
      return "Отправить &ещё раз";
    case Choice::startAfresh:
      return "&Начать заново";
    case Choice::later:
      return "О&тложить";
    case Choice::replace:
      return "&Заменить";
    case Choice::printed:
      return "&Напечатаны";
    case Choice::notPrinted:
      return "&Не напечатаны";
    case Choice::cancel:
      break;
  }
  return "&Отмена";
}

}  // namespace awizo
