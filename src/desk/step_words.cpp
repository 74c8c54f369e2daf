#include "desk/step_words.h"

#include <algorithm>
#include <string_view>

#include "desk/layout_words.h"
#include "platform/text.h"
#include "session/record/header_fields.h"

namespace awizo {
namespace {

/// "Номер заказа :" without what follows the words.
std::string named(std::string_view caption) {
  const std::size_t end = caption.find_last_not_of(" :");
  return joined({"поле «", caption.substr(0, end + 1), "»"});
}

std::string fieldWords(AwizoForm& form, const Control* field) {
  std::string words;
  for (const HeaderField& header : headerFields(form)) {
    std::visit(
        [&](const auto* control) {
          if (control == field) words = named(control->caption());
        },
        header.control);
  }
  return words;
}

std::string withCommand(std::string_view command, AwizoForm& form, const journal::StepName* name) {
  if (name == nullptr) return std::string(command);
  // A mnemonic's mark in a name would be one of the menu's.
  return joined({command, ": ", replaceAll(stepWords(form, *name), "&", "&&")});
}

}  // namespace

std::string stepWords(AwizoForm& form, const journal::StepName& name) {
  if (!name.text.empty()) return name.text;
  const Control* on = name.control;
  const auto numbered = [](std::string_view what, int number) {
    return joined({what, " ", std::to_string(number)});
  };
  if (on == &form.btnUsun) return numbered("удаление строки", name.line);
  if (on == &form.btnDodaj) return numbered("добавление строки", name.newLine);
  if (on == &form.btnEdytuj || on == &form.grdPozycje) return numbered("правка строки", name.line);
  if (on == &form.btnUsunOpak) return numbered("удаление упаковки", name.package);
  if (on == &form.btnDodajOpak) return numbered("добавление упаковки", name.newPackage);
  if (on == &form.btnEdytujOpak) return numbered("правка упаковки", name.package);
  if (on == &form.btnUzupelnij || on == &form.btnNadpisz) return "заполнение ставки НДС";
  if (on == &form.btnUzupelnij2 || on == &form.btnNadpisz2) return "заполнение страны";
  const std::string field = fieldWords(form, on);
  return field.empty() ? "последнее изменение" : field;
}

std::string takeBackWords(AwizoForm& form, const journal::History& history) {
  return withCommand(words::takeBack, form, history.toTakeBack());
}

std::string doAgainWords(AwizoForm& form, const journal::History& history) {
  return withCommand(words::doAgain, form, history.toDoAgain());
}

}  // namespace awizo
