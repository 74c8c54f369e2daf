#include "desk/commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "platform/text.h"
#include "support/control/test_control.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

class CommandsTest : public ::testing::Test, public TestControl {
 protected:
  std::vector<const Command*> all() const {
    std::vector<const Command*> commands;
    for (const CommandMenu& menu : menus) {
      for (const auto& group : menu.groups) {
        for (const Command& command : group) commands.push_back(&command);
      }
    }
    return commands;
  }

  const std::vector<CommandMenu> menus = commandMenus(form);
};

/// The letter after the mark, in UTF-8.
std::string mnemonicOf(std::string_view words) {
  const std::size_t mark = words.find('&');
  return mark == words.npos ? "" : std::string(firstCharacters(words.substr(mark + 1), 1));
}

TEST_F(CommandsTest, StandInFourMenus) {
  std::vector<std::string_view> headings;
  for (const CommandMenu& menu : menus) headings.push_back(menu.heading);
  EXPECT_THAT(headings, ElementsAre("&Документ", "&Правка", "&Бумаги", "&Справка"));
}

TEST_F(CommandsTest, EachDoesOneThingAndNoTwoTheSame) {
  std::set<const Button*> buttons;
  std::set<HostTask> tasks;
  for (const Command* command : all()) {
    const bool pressesButton = command->button != nullptr;
    EXPECT_NE(pressesButton, command->task != HostTask::none) << command->words;
    const bool isNew =
        pressesButton ? buttons.insert(command->button).second : tasks.insert(command->task).second;
    EXPECT_TRUE(isNew) << command->words;
  }
  EXPECT_EQ(buttons.size(), 10U);
  EXPECT_EQ(tasks.size(), 20U);
}

TEST_F(CommandsTest, NoTwoOfAMenuShareALetterAndNoTwoOfAPlaceAKey) {
  std::set<std::tuple<const Control*, std::int16_t, bool, bool>> keys;
  for (const CommandMenu& menu : menus) {
    std::set<std::string> letters;
    for (const auto& group : menu.groups) {
      for (const Command& command : group) {
        EXPECT_NE(mnemonicOf(command.words), "") << command.words;
        EXPECT_TRUE(letters.insert(mnemonicOf(command.words)).second) << command.words;
        for (const CommandKey& key : command.keys) {
          EXPECT_TRUE(keys.emplace(command.place, key.code, key.control, key.shift).second)
              << command.words;
        }
      }
    }
  }
}

TEST_F(CommandsTest, WhatABrowserTakesHasAnotherKeyThere) {
  std::vector<CommandMenu> inBrowser = commandMenus(form);
  leaveToBrowser(inBrowser);
  const auto keysOf = [](const std::vector<CommandMenu>& of, HostTask task) {
    std::vector<CommandKey> keys;
    for (const CommandMenu& menu : of) {
      for (const auto& group : menu.groups) {
        for (const Command& command : group) {
          if (command.task == task) keys = command.keys;
        }
      }
    }
    return keys;
  };
  constexpr CommandKey ctrlN{.code = 'N', .control = true};
  constexpr CommandKey f7{.code = 118};
  EXPECT_THAT(keysOf(menus, HostTask::addPackages), ElementsAre(ctrlN, f7));
  EXPECT_THAT(keysOf(inBrowser, HostTask::addPackages), ElementsAre(f7));
  EXPECT_EQ(keysOf(inBrowser, HostTask::findLine), keysOf(menus, HostTask::findLine));
}

TEST_F(CommandsTest, PlainWordsHaveNeitherMarkNorDots) {
  EXPECT_EQ(documentCommands(form).front().plainWords(), "Открыть");
  EXPECT_EQ(lineCommands(form).back().plainWords(), "Удалить строку");
}

TEST_F(CommandsTest, TipTellsTheKey) {
  EXPECT_EQ(documentCommands(form).front().tip("Ctrl+O"), "Открыть (Ctrl+O)");
}

TEST_F(CommandsTest, ThatPressButtonsAreThoseOfTheMenus) {
  std::vector<const Button*> buttons;
  for (const Command& command : buttonCommands(menus)) buttons.push_back(command.button);
  EXPECT_THAT(buttons,
              ElementsAre(&form.btnWczytaj, &form.btnZapisz, &form.btnPrzeslij, &form.btnDodaj,
                          &form.btnEdytuj, &form.btnUsun, &form.btnDodajOpak, &form.btnEdytujOpak,
                          &form.btnUsunOpak, &form.Image2));
}

TEST_F(CommandsTest, ADoubleClickEditsAPackageAndChoosesACountry) {
  std::vector<Command> commands = buttonCommands(menus);
  for (const auto& more :
       {lineDialogCommands(control.dlgDodaj), countryListCommands(control.dlgIsoCodes)}) {
    commands.insert(commands.end(), more.begin(), more.end());
  }
  std::vector<std::string> doubled;
  for (const Command& command : commands) {
    if (!command.onDoubleClick) continue;
    ASSERT_NE(command.place, nullptr);
    doubled.push_back(command.place->name() + " " + command.button->name());
  }
  EXPECT_THAT(doubled, ElementsAre("grdOpakowania btnEdytujOpak", "grdISO btnAccept"));
}

TEST_F(CommandsTest, AreThereAsTheirButtonsAre) {
  const Command edit = lineCommands(form)[1];
  EXPECT_FALSE(edit.isEnabled()) << "the form isn't shown yet";
  form.showMain();
  EXPECT_TRUE(edit.isEnabled());
  form.btnEdytuj.setEnabled(false);
  EXPECT_FALSE(edit.isEnabled());
  EXPECT_TRUE(edit.isVisible());
  form.btnEdytuj.setEnabled(true);
  form.setEnabled(false);
  EXPECT_FALSE(edit.isEnabled());
  form.setEnabled(true);
  form.btnEdytuj.setVisible(false);
  EXPECT_FALSE(edit.isVisible());
  EXPECT_FALSE(edit.isEnabled());
}

}  // namespace
}  // namespace awizo::test
