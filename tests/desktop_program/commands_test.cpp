#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <set>

#include "desktop_program/program_test.h"
#include "hosts/desktop/faces/russian_keys.h"
#include "hosts/desktop/faces/table_face.h"

namespace awizo::test {
namespace {

/// Counts the buttons' clicks instead of letting them work.
class CommandsTest : public ProgramTest {
 protected:
  void openCounting() {
    open(offLineOptions());
    for (Button* button :
         {static_cast<Button*>(&form().btnWczytaj), static_cast<Button*>(&form().btnZapisz),
          static_cast<Button*>(&form().btnPrzeslij), &form().btnDodaj, &form().btnEdytuj,
          &form().btnUsun, &form().btnDodajOpak, &form().btnEdytujOpak, &form().btnUsunOpak}) {
      button->onClick = [this, button] { pressed += button->name() + " "; };
    }
  }

  std::string pressed;
};

TEST_F(CommandsTest, KeysOpenAndSaveFromAnyField) {
  openCounting();
  press(Qt::Key_O, Qt::ControlModifier);
  tabTo(form().txtCodeByBuyer);
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(pressed, "btnWczytaj btnZapisz ");
  EXPECT_EQ(form().focus(), &form().txtCodeByBuyer) << "a command moves no focus";
}

/// The key of a Latin letter where Russian is the only layout.
Qt::Key russian(Qt::Key latin) { return desktop::onRussianKeyboard(latin); }

TEST_F(CommandsTest, KeysWorkOnAKeyboardWithoutLatinLettersToo) {
  EXPECT_EQ(russian(Qt::Key_O), Qt::Key(u'Щ'));
  EXPECT_EQ(russian(Qt::Key_F1), Qt::Key(0));
  openCounting();
  press(russian(Qt::Key_O), Qt::ControlModifier);
  press(russian(Qt::Key_S), Qt::ControlModifier);
  EXPECT_EQ(pressed, "btnWczytaj btnZapisz ");
  press(russian(Qt::Key_O));
  press(russian(Qt::Key_O), Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(pressed, "btnWczytaj btnZapisz ");
}

TEST_F(CommandsTest, FieldsCopyPasteAndUndoWithoutLatinLettersToo) {
  openCounting();
  typeOver(face(form().txtNrAwiza), "АБ");
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_V}) {
    press(russian(key), Qt::ControlModifier);
  }
  EXPECT_EQ(form().txtNrAwiza.text(), "АБАБ");
  press(russian(Qt::Key_Z), Qt::ControlModifier);
  EXPECT_EQ(form().txtNrAwiza.text(), "АБ");
  press(russian(Qt::Key_Z), Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(form().txtNrAwiza.text(), "АБАБ");
  EXPECT_EQ(pressed, "");
}

TEST_F(CommandsTest, KeysActOnTheTableThatHasTheFocus) {
  openCounting();
  tabTo(form().grdPozycje);
  press(Qt::Key_Insert);
  press(Qt::Key_F2);
  press(Qt::Key_Delete);
  EXPECT_EQ(pressed, "btnDodaj btnEdytuj btnUsun ");
  pressed.clear();
  tabTo(form().grdOpakowania);
  press(Qt::Key_Insert);
  press(Qt::Key_F2);
  press(Qt::Key_Return);
  press(Qt::Key_Delete);
  EXPECT_EQ(pressed, "btnDodajOpak btnEdytujOpak btnEdytujOpak btnUsunOpak ");
}

TEST_F(CommandsTest, KeysOfTablesAreTheFieldsOwnElsewhere) {
  openCounting();
  typeOver(face(form().txtNrAwiza), "АБ");
  press(Qt::Key_Home);
  press(Qt::Key_Delete);
  press(Qt::Key_Insert);
  press(Qt::Key_F2);
  EXPECT_EQ(form().txtNrAwiza.text(), "Б");
  EXPECT_EQ(pressed, "");
}

TEST_F(CommandsTest, EveryMenuItemPressesItsButton) {
  openCounting();
  for (QAction* action :
       {commands().action(form().btnWczytaj), commands().action(form().btnZapisz),
        commands().action(form().btnDodaj), commands().action(form().btnEdytuj),
        commands().action(form().btnUsun), commands().action(form().btnDodajOpak),
        commands().action(form().btnEdytujOpak), commands().action(form().btnUsunOpak)}) {
    action->trigger();
  }
  EXPECT_EQ(pressed,
            "btnWczytaj btnZapisz btnDodaj btnEdytuj btnUsun btnDodajOpak btnEdytujOpak "
            "btnUsunOpak ");
}

TEST_F(CommandsTest, MenuStandsAsTheButtonsStand) {
  openCounting();
  EXPECT_FALSE(commands().action(form().btnPrzeslij)->isVisible())
      << "off line nothing can be sent";
  widget().setOnLine("On");
  EXPECT_TRUE(commands().action(form().btnPrzeslij)->isVisible());
  form().btnEdytuj.setEnabled(false);
  EXPECT_FALSE(commands().action(form().btnEdytuj)->isEnabled());
  form().btnEdytuj.setEnabled(true);
  EXPECT_TRUE(commands().action(form().btnEdytuj)->isEnabled());
  form().setEnabled(false);
  EXPECT_FALSE(commands().action(form().btnWczytaj)->isEnabled());
  press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(pressed, "");
}

TEST_F(CommandsTest, MenusAndTipsTellTheKeys) {
  openCounting();
  QStringList menus;
  for (const QAction* menu : window().menuBar()->actions()) menus << menu->text();
  EXPECT_EQ(menus, QStringList({"&Документ", "&Правка", "&Бумаги", "&Справка"}));
  EXPECT_EQ(commands().action(form().btnWczytaj)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
  EXPECT_EQ(commands().action(form().btnUsunOpak)->shortcut(), QKeySequence(Qt::Key_Delete));
  EXPECT_EQ(face(form().btnDodaj).widget()->toolTip(), "Добавить строку (Ins)");
  EXPECT_EQ(face(form().btnZapisz).widget()->toolTip(), "Сохранить (Ctrl+S)");
  EXPECT_EQ(face(form().btnEdytujOpak).widget()->toolTip(), "Изменить упаковку (F2)");
}

TEST_F(CommandsTest, MenusOpenAndActByTheirLetters) {
  openCounting();
  constexpr auto cyrillicD = static_cast<Qt::Key>(0x414);
  constexpr auto cyrillicI = static_cast<Qt::Key>(0x418);
  constexpr auto cyrillicO = static_cast<Qt::Key>(0x41E);
  constexpr auto cyrillicP = static_cast<Qt::Key>(0x41F);
  press(cyrillicD, Qt::AltModifier);
  press(cyrillicO);
  EXPECT_EQ(pressed, "btnWczytaj ");
  press(cyrillicP, Qt::AltModifier);
  press(cyrillicI);
  EXPECT_EQ(pressed, "btnWczytaj btnEdytuj ");
}

TEST_F(CommandsTest, F1ShowsTheUserGuideWithItsPictures) {
  openCounting();
  press(Qt::Key_F1);
  const auto* guide = window().findChild<QWidget*>("guide");
  ASSERT_NE(guide, nullptr);
  EXPECT_TRUE(guide->isVisible());
  auto* text = guide->findChild<QTextBrowser*>();
  EXPECT_TRUE(text->toPlainText().startsWith("Руководство пользователя\nAwizo"));
  EXPECT_FALSE(text->loadResource(QTextDocument::ImageResource, QUrl("images/line.png")).isNull());
  window().activateWindow();
  press(Qt::Key_F1);
  EXPECT_EQ(window().findChildren<QWidget*>("guide").size(), 1);
}

TEST_F(CommandsTest, F1InADialogOpensItsChapterBesideIt) {
  open(offLineOptions());
  std::string shown;
  int widest = 0;
  then([&] {
    press(Qt::Key_F1);
    settle();
    QWidget* dialog = QApplication::activeModalWidget();
    const auto* guide = dialog->findChild<QWidget*>("guide");
    if (guide != nullptr) {
      const auto* text = guide->findChild<QTextBrowser*>();
      shown = desktop::toText(text->cursorForPosition({5, 20}).block().text());
      widest = text->horizontalScrollBar()->maximum();
    }
    control().dlgSzczegoly.userClose();
  });
  tabTo(form().grdOpakowania);
  press(Qt::Key_Insert);
  EXPECT_EQ(shown, "Упаковки");
  EXPECT_EQ(widest, 0) << "no picture is wider than the guide";
}

TEST_F(CommandsTest, NoTwoItemsOfAMenuShareALetter) {
  openCounting();
  for (const QAction* menu : window().menuBar()->actions()) {
    std::set<QKeySequence> letters;
    for (const QAction* action : menu->menu()->actions()) {
      if (action->isSeparator()) continue;
      const QKeySequence letter = QKeySequence::mnemonic(action->text());
      EXPECT_FALSE(letter.isEmpty()) << action->text().toStdString();
      EXPECT_TRUE(letters.insert(letter).second) << action->text().toStdString();
    }
  }
}

TEST_F(CommandsTest, TheWindowFitsASmallScreenAndCutsNoButton) {
  openCounting();
  window().resize(1024, 700);
  letLayoutsSettle();
  EXPECT_LE(widget().minimumSizeHint().width(), 1024);
  EXPECT_LE(widget().minimumSizeHint().height(), 676);
  for (const Control* control : form().controls()) {
    const QWidget* shown = face(*control).widget();
    if (!shown->isVisible()) continue;
    const QRect area(shown->mapTo(&widget(), QPoint()), shown->size());
    EXPECT_TRUE(widget().rect().contains(area)) << control->name();
    if (control->kind() == ControlKind::label || control->kind() == ControlKind::table) continue;
    EXPECT_GE(shown->width(), shown->minimumSizeHint().width()) << control->name();
    EXPECT_GE(shown->height(), shown->minimumSizeHint().height()) << control->name();
  }
}

}  // namespace
}  // namespace awizo::test
