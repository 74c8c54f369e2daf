#include "desk/commands.h"

#include <algorithm>
#include <iterator>

#include "desk/layout_words.h"
#include "platform/forms/keys.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view countriesIcon = "countries";

constexpr CommandKey key(std::int16_t code) { return {.code = code}; }
constexpr CommandKey withControl(char letter) { return {.code = letter, .control = true}; }

Command folderCommand() {
  return {
      .words = "&Папка для работы без связи…", .icon = "folder", .task = HostTask::chooseFolder};
}

std::vector<Command> sessionCommands() {
  return {folderCommand(),
          {.words = "&Начать сеанс заново", .icon = "again", .task = HostTask::startAgain}};
}

/// Their words go on with the name of the step: see step_words.h.
std::vector<Command> stepCommands() {
  return {{.words = words::takeBack, .task = HostTask::takeBack, .keys = {withControl('Z')}},
          {.words = words::doAgain,
           .task = HostTask::doAgain,
           .keys = {withControl('Y'), {.code = 'Z', .control = true, .shift = true}}}};
}

std::vector<Command> packingCommands() {
  return {{.words = "Несколько упа&ковок…",
           .task = HostTask::addPackages,
           .keys = {withControl('N'), key(keys::f7)}},
          {.words = "Разло&жить по упаковкам…",
           .task = HostTask::distribute,
           .keys = {withControl('D')}},
          {.words = "Что &где лежит", .task = HostTask::showPacking, .keys = {key(keys::f6)}},
          {.words = "Сканер кладё&т в упаковку", .task = HostTask::scannerPacks, .isSwitch = true}};
}

std::vector<Command> findCommands() {
  return {{.words = "&Найти строку…", .task = HostTask::findLine, .keys = {withControl('F')}},
          {.words = "Найти &ещё раз", .task = HostTask::findAgain, .keys = {key(keys::f3)}},
          {.words = "&Что не так…", .task = HostTask::showFaults, .keys = {key(keys::f8)}}};
}

std::vector<Command> endCommands() {
  return {{.words = "&Выход", .task = HostTask::quit, .keys = {withControl('Q')}}};
}

Command paperOfFileCommand() {
  return {.words = "Бумаги сохранённого &документа…", .task = HostTask::showPapersOfFile};
}

std::vector<Command> paperCommands() {
  return {{.words = "&Этикетки…", .task = HostTask::showLabels, .keys = {withControl('L')}},
          {.words = "&Упаковочный лист…",
           .task = HostTask::showPackingList,
           .keys = {withControl('P')}},
          {.words = "&Листы в упаковки…", .task = HostTask::showPackageSheets},
          {.words = "Упаковочный лист &таблицей…", .task = HostTask::showPackingCsv}};
}

std::vector<Command> numberCommands() {
  return {{.words = "&Номера упаковок…", .task = HostTask::showNumbers}};
}

std::vector<Command> helpCommands() {
  return {
      {.words = "&Руководство пользователя", .task = HostTask::showGuide, .keys = {key(keys::f1)}},
      {.words = "&О программе", .task = HostTask::showAbout}};
}

}  // namespace

std::string Command::plainWords() const { return replaceAll(replaceAll(words, "&", ""), "…", ""); }

std::string Command::tip(std::string_view key) const {
  return joined({plainWords(), " (", key, ")"});
}

bool Command::isEnabled() const {
  if (button == nullptr) return true;
  const Form& form = button->form();
  return form.shown() && form.enabled() && button->enabled() && button->visible();
}

std::vector<Command> documentCommands(AwizoForm& form) {
  return {{.words = "&Открыть…",
           .icon = "open",
           .button = &form.btnWczytaj,
           .keys = {withControl('O')}},
          {.words = "&Сохранить…",
           .icon = "save",
           .button = &form.btnZapisz,
           .keys = {withControl('S')}},
          {.words = "О&тправить",
           .icon = "send",
           .button = &form.btnPrzeslij,
           .keys = {key(keys::f9)}}};
}

std::vector<Command> lineCommands(AwizoForm& form) {
  // On the lines Enter is the table's own: it edits what the current column holds.
  return {{.words = "&Добавить строку…",
           .icon = "add",
           .button = &form.btnDodaj,
           .keys = {key(keys::insert)},
           .place = &form.grdPozycje},
          {.words = "&Изменить строку…",
           .icon = "edit",
           .button = &form.btnEdytuj,
           .keys = {key(keys::f2)},
           .place = &form.grdPozycje,
           .onCurrentRow = true},
          {.words = "&Удалить строку",
           .icon = "remove",
           .button = &form.btnUsun,
           .keys = {key(keys::remove)},
           .place = &form.grdPozycje,
           .onCurrentRow = true}};
}

std::vector<Command> packageCommands(AwizoForm& form) {
  return {{.words = "До&бавить упаковку…",
           .icon = "add",
           .button = &form.btnDodajOpak,
           .keys = {key(keys::insert)},
           .place = &form.grdOpakowania},
          {.words = "Из&менить упаковку…",
           .icon = "edit",
           .button = &form.btnEdytujOpak,
           .keys = {key(keys::f2), key(keys::enter)},
           .place = &form.grdOpakowania,
           .onCurrentRow = true,
           .onDoubleClick = true},
          {.words = "Уд&алить упаковку",
           .icon = "remove",
           .button = &form.btnUsunOpak,
           .keys = {key(keys::remove)},
           .place = &form.grdOpakowania,
           .onCurrentRow = true}};
}

std::vector<Command> countryCommands(AwizoForm& form) {
  return {{.words = "Страна из полного &списка…",
           .icon = countriesIcon,
           .button = &form.Image2,
           .keys = {withControl('G')}}};
}

std::vector<CommandMenu> startMenus() {
  return {{"&Документ", {{folderCommand()}, endCommands()}}, {"&Справка", {helpCommands()}}};
}

std::vector<Command> lineDialogCommands(DlgDodaj& dialog) {
  return {{.words = words::putIntoPackage,
           .button = &dialog.Command1,
           .keys = {key(keys::insert)},
           .place = &dialog.grdPozycje},
          {.words = words::takeOutOfPackage,
           .button = &dialog.Command2,
           .keys = {key(keys::remove)},
           .place = &dialog.grdPozycje,
           .onCurrentRow = true},
          {.words = words::changePackage,
           .button = &dialog.Command3,
           .keys = {key(keys::f2)},
           .place = &dialog.grdPozycje,
           .onCurrentRow = true},
          {.words = words::anyCountry,
           .icon = countriesIcon,
           .button = &dialog.btnISOcodes,
           .keys = {withControl('G')}}};
}

std::vector<Command> countryListCommands(DlgIsoCodes& dialog) {
  return {{.words = words::anyCountry,
           .button = &dialog.btnAccept,
           .place = &dialog.grdISO,
           .onDoubleClick = true}};
}

std::vector<Command> buttonCommands(const std::vector<CommandMenu>& menus) {
  std::vector<Command> commands;
  for (const CommandMenu& menu : menus) {
    for (const std::vector<Command>& group : menu.groups) {
      std::ranges::copy_if(group, std::back_inserter(commands),
                           [](const Command& command) { return command.button != nullptr; });
    }
  }
  return commands;
}

void leaveToBrowser(std::vector<CommandMenu>& menus) {
  const auto isBrowsers = [](const CommandKey& key) { return key == withControl('N'); };
  for (CommandMenu& menu : menus) {
    for (std::vector<Command>& group : menu.groups) {
      for (Command& command : group) std::erase_if(command.keys, isBrowsers);
    }
  }
}

std::vector<CommandMenu> commandMenus(AwizoForm& form) {
  return {{"&Документ", {documentCommands(form), sessionCommands(), endCommands()}},
          {"&Правка",
           {stepCommands(), lineCommands(form), packageCommands(form), packingCommands(),
            countryCommands(form), findCommands()}},
          {"&Бумаги", {paperCommands(), {paperOfFileCommand()}, numberCommands()}},
          {"&Справка", {helpCommands()}}};
}

}  // namespace awizo
