#include "desk/host_boxes.h"

#include "desk/layout_words.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view whatLaunchFilesAre =
    "Файл запуска (*.awizo) даёт страница службы: в нём её адрес. Сохранённые документы (*.xml) "
    "открываются командой «Открыть».";

}  // namespace

MessageBox folderRequest() {
  return {
      "Для работы нужна папка с файлами вашей фирмы.\r\n\r\n"
      "Выберите, где она лежит или где её создать: редактор работает в папке VIRD внутри "
      "выбранной. В ней должен быть файл userinfo.xml, который выдал ваш партнёр.",
      std::string(words::boxTitle), BoxIcon::information, BoxButtons::ok};
}

MessageBox newAddressQuestion(std::string_view origin) {
  return {joined({"Редактор будет обмениваться документами со службой по адресу:\r\n\r\n", origin,
                  "\r\n\r\nЭтот адрес встречается впервые. Вы ему доверяете?"}),
          std::string(words::boxTitle), BoxIcon::question, BoxButtons::yesNo};
}

MessageBox launchFileRefusal(std::string_view file, std::string_view why) {
  return {joined({"Файл запуска «", file, "» не годится.\r\n\r\n", why, "\r\n\r\n",
                  whatLaunchFilesAre}),
          std::string(words::boxTitle), BoxIcon::critical, BoxButtons::ok};
}

std::string diskRefusal(const RunTimeError& error) {
  switch (error.number()) {
    case 13:
      return "файл повреждён";
    case 53:
      return "нет такого файла";
    case 61:
      return "диск полон";
    case 70:
      return "нет прав доступа";
    case 76:
      return "нет такой папки";
    default:
      return error.description();
  }
}

MessageBox fileRefusal(std::string_view name, const RunTimeError& error) {
  return {joined({"Файл ", name, " не взят в папку: ", diskRefusal(error), "."}),
          std::string(words::boxTitle), BoxIcon::critical, BoxButtons::ok};
}

MessageBox paperRefusal(std::string_view what, const RunTimeError& error) {
  const bool isNoAdvice = error.number() == 5;
  const std::string reason =
      isNoAdvice
          ? "это не уведомление об отгрузке, или в нём есть то, чего в документе быть не может"
          : diskRefusal(error);
  return {joined({what, ": ", reason, "."}), std::string(words::boxTitle), BoxIcon::critical,
          BoxButtons::ok};
}

MessageBox noPrinter() {
  return {
      "Печатать не на чем: в системе нет ни одного принтера.\r\n\r\nСохраните листы кнопкой "
      "«В файл PDF…» и напечатайте их с другого компьютера.",
      std::string(words::boxTitle), BoxIcon::exclamation, BoxButtons::ok};
}

MessageBox printRefusal() {
  return {
      "Листы не напечатаны: принтер или файл для печати не открывается.\r\n\r\nВыберите другой "
      "принтер или сохраните листы кнопкой «В файл PDF…».",
      std::string(words::boxTitle), BoxIcon::critical, BoxButtons::ok};
}

MessageBox recordThatStays(const RunTimeError& error) {
  return {joined({"Запись прежней работы не удаляется: ", diskRefusal(error),
                  ".\r\n\r\nРаботать можно. При следующем запуске её предложат снова."}),
          std::string(words::boxTitle), BoxIcon::exclamation, BoxButtons::ok};
}

MessageBox unreadableRecord(const RunTimeError& error) {
  return {joined({"Запись прежней работы не читается: ", diskRefusal(error),
                  ".\r\n\r\nОна остаётся на диске, а работа начнётся заново."}),
          std::string(words::boxTitle), BoxIcon::exclamation, BoxButtons::ok};
}

MessageBox aboutBox(std::string_view version) {
  return {joined({version, "\r\n\r\nРедактор подтверждений отгрузки (EDIFACT DESADV в виде XML)."}),
          "О программе", BoxIcon::information, BoxButtons::ok};
}

}  // namespace awizo
