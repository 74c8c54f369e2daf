#pragma once

#include <string_view>

/// Words on a form in addition to its models'. The host decides where they are.
namespace awizo::words {

inline constexpr std::string_view windowTitle = "Подтверждение отгрузки";
inline constexpr std::string_view boxTitle = "VIRD";
// Why the start page is back.
inline constexpr std::string_view startRefused = "Начать не удалось. ";
inline constexpr std::string_view addressNotTrusted =
    "Сеанс со службой не начат: её адресу не доверено. Ничего не отправлено.";
inline constexpr std::string_view folderNotChosen =
    "Сеанс не начат: папка с файлами вашей фирмы не выбрана.";
inline constexpr std::string_view replayFailed =
    "Продолжить не удалось: программа или её настройки с тех пор изменились. Запись работы "
    "сохранена.";
inline constexpr std::string_view continued = "Продолжена работа, записанная до ";
/// Followed by what is wrong with the disk.
inline constexpr std::string_view notRecorded =
    "Работа больше не записывается и при сбое пропадёт: ";
// Each followed by ": " and the name of a step.
inline constexpr std::string_view takeBack = "&Отменить";
inline constexpr std::string_view doAgain = "&Повторить";
// Each followed by the name of a step.
inline constexpr std::string_view takenBack = "Отменено: ";
inline constexpr std::string_view doneAgain = "Повторено: ";
inline constexpr std::string_view launchFileTitle = "Файл запуска";
inline constexpr std::string_view launchFileKind = "Файлы запуска (*.awizo);;Все файлы (*)";

inline constexpr std::string_view guideTitle = "Руководство пользователя";
inline constexpr std::string_view guideContents = "Содержание";
inline constexpr std::string_view noGuide = "Руководство не установлено.";

// Papers.
inline constexpr std::string_view paperPreview = "Лист, каким он будет";
inline constexpr std::string_view packingListTitle = "Упаковочный лист";
inline constexpr std::string_view csvKind = "Таблицы CSV (*.csv)";
inline constexpr std::string_view pdfKind = "Файлы PDF (*.pdf)";
inline constexpr std::string_view savedDocumentTitle = "Сохранённый документ";
inline constexpr std::string_view savedDocumentKind = "Документы (*.xml);;Все файлы (*)";
inline constexpr std::string_view noPapers = "Этикеток и листов нет";

/// What the button that stops an assistant says.
inline constexpr std::string_view stop = "&Остановить";
/// How many are done, and how many there are.
inline constexpr std::string_view packagesAdded = "Добавлено упаковок: %1 из %2";
inline constexpr std::string_view linesPacked = "Разложено строк: %1 из %2";

// The dialog of the firm's package numbers.
inline constexpr std::string_view partGroup = "Отдать часть другой программе или браузеру";
inline constexpr std::string_view numbersOfBrowser =
    "Эти номера даёт только этот браузер, одни на все его вкладки. Попросите для него свою часть у "
    "того, кто ведает номерами фирмы, и впишите её сюда.";

inline constexpr std::string_view browserHasNoNumbers =
    "У этого браузера ещё нет номеров упаковок. Попросите для него часть у того, кто ведает "
    "номерами фирмы, и впишите её: номер будет появляться здесь сам.";

// The pane that shows what lies where.
inline constexpr std::string_view packingOnlyRest = "&Только неупакованное";
inline constexpr std::string_view packRest = "&Положить остаток сюда";
inline constexpr std::string_view packRestTip =
    "Положить остаток отмеченных строк в упаковку, на которой вы стоите (Ins)";
inline constexpr std::string_view packingLines = "Строки, что из них упаковано";
inline constexpr std::string_view packingPackages = "Упаковки, что в них лежит";
inline constexpr std::string_view packingNumber = "№";
inline constexpr std::string_view packingGoods = "Товар";
inline constexpr std::string_view packingPacked = "Упаковано";
inline constexpr std::string_view packingPackage = "Упаковка";
inline constexpr std::string_view packingQuantity = "Сколько";

// Main form: groups of the header's fields, the country that is written over all lines.
inline constexpr std::string_view documentGroup = "Документ";
inline constexpr std::string_view orderGroup = "Заказ";
inline constexpr std::string_view deliveryGroup = "Доставка";
inline constexpr std::string_view country = "Страна:";
/// Below the table of lines where no line is the current one.
inline constexpr std::string_view noLine = "Строка не выбрана";
inline constexpr std::string_view noSuchLine = "Такой строки нет";
inline constexpr std::string_view codeSoFar = "Код: ";
inline constexpr std::string_view noSuchCode = "Нет строки с кодом ";
inline constexpr std::string_view noSuchPackage = "Нет упаковки с номером ";

// Names of tables and fields for screen readers, where no caption stands beside them.
inline constexpr std::string_view linesTable = "Товарные позиции";
inline constexpr std::string_view packagesTable = "Упаковки";
inline constexpr std::string_view totalsTable = "Итоги";
/// With the key that does the same, which tables have by themselves.
inline constexpr std::string_view copyCells = "&Копировать\tCtrl+C";
inline constexpr std::string_view quantityEditor = "Отгруженное количество";
inline constexpr std::string_view linePackagesTable = "Упаковки этой строки";
inline constexpr std::string_view countriesTable = "Страны";
inline constexpr std::string_view faultsTable = "Что не так";
inline constexpr std::string_view partsTable = "Что куда ляжет";
inline constexpr std::string_view customsNumber = "Номер ГТД, первые 8 цифр";
inline constexpr std::string_view customsDate = "Номер ГТД, дата";
inline constexpr std::string_view customsSerial = "Номер ГТД, последние 7 цифр";
inline constexpr std::string_view customsItem = "Номер ГТД, номер товара";
inline constexpr std::string_view anyCountry = "Страна из полного списка";

/// Search among the lines.
inline constexpr std::string_view whatToFind = "Номер, EAN, название или код:";

// Line dialog: groups of fields, tips of the buttons next to its packages.
inline constexpr std::string_view productGroup = "Товар";
inline constexpr std::string_view quantityGroup = "Количество и налог";
inline constexpr std::string_view datesGroup = "Сроки и происхождение";
inline constexpr std::string_view putIntoPackage = "Положить товар в упаковку";
inline constexpr std::string_view takeOutOfPackage = "Вынуть товар из упаковки";
inline constexpr std::string_view changePackage = "Изменить упаковку или количество";

// Package dialog: groups of fields.
inline constexpr std::string_view packageGroup = "Упаковка";
inline constexpr std::string_view sizesGroup = "Размеры и номер";
inline constexpr std::string_view packageDeliveryGroup = "Доставка";

// File dialog.
inline constexpr std::string_view recentFiles = "&Недавние";
inline constexpr std::string_view fileName = "Имя файла:";
inline constexpr std::string_view folder = "Папка:";
inline constexpr std::string_view chooseFile = "Выбрать";
inline constexpr std::string_view writeFile = "Записать";
inline constexpr std::string_view closeDialog = "Закрыть";

}  // namespace awizo::words
