#include <QApplication>
#include <QMessageBox>

#include "control_on_desktop.h"
#include "hosts/desktop/screen/desktop_screen_face.h"
#include "hosts/desktop/screen/message_box.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

class ScreenOnDesktop : public testing::Test, public ControlOnDesktop {
 protected:
  Answer ask(MessageBox box) { return control.screen.messageBox(std::move(box)); }
};

TEST_F(ScreenOnDesktop, ABoxShowsTextTitleIconAndRussianButton) {
  std::string box;
  answerNext("ОК", &box);
  control.screen.showCritical("Ошибка", "VIRD");
  EXPECT_EQ(box, "critical|VIRD|Ошибка|ОК");
}

TEST_F(ScreenOnDesktop, AnErrorOfTheServiceIsExplainedBesideItsOwnText) {
  then([] {
    QMessageBox* box = openBox();
    EXPECT_EQ(box->text(), "The download of the specified resource has failed.");
    EXPECT_TRUE(box->informativeText().contains("он мог дойти"));
    press(Qt::Key_Return);
  });
  control.screen.showError(errors::downloadFailed(), "Bі№d w SendXMLDOMRequest()!");
}

TEST_F(ScreenOnDesktop, AQuestionIsAnsweredYesOrNo) {
  std::string box;
  answerNext("&Да", &box);
  EXPECT_EQ(ask({"Да?", "VIRD", BoxIcon::question, BoxButtons::yesNo}), Answer::yes);
  EXPECT_EQ(box, "question|VIRD|Да?|&Да,&Нет");
  answerNext("&Нет");
  EXPECT_EQ(ask({"Да?", "VIRD", BoxIcon::question, BoxButtons::yesNo}), Answer::no);
}

TEST_F(ScreenOnDesktop, EnterMeansYesAndEscapeNo) {
  then([] { press(Qt::Key_Return); });
  EXPECT_EQ(ask({"Да?", "VIRD", BoxIcon::question, BoxButtons::yesNo}), Answer::yes);
  then([] { press(Qt::Key_Escape); });
  EXPECT_EQ(ask({"Да?", "VIRD", BoxIcon::question, BoxButtons::yesNo}), Answer::no);
  then([] { openBox()->close(); });
  EXPECT_EQ(ask({"Да?", "VIRD", BoxIcon::question, BoxButtons::yesNo}), Answer::no);
  then([] { press(Qt::Key_Escape); });
  EXPECT_EQ(ask({"Готово", ""}), Answer::ok);
}

TEST_F(ScreenOnDesktop, MnemonicsAnswerAQuestion) {
  then([] { press(static_cast<Qt::Key>(0x41D), Qt::AltModifier); });  // Н
  EXPECT_EQ(ask({"Да?", "VIRD", BoxIcon::question, BoxButtons::yesNo}), Answer::no);
}

TEST_F(ScreenOnDesktop, EveryIconIsShown) {
  std::string box;
  for (const auto& [icon, name] :
       {std::pair{BoxIcon::none, "none"}, std::pair{BoxIcon::exclamation, "exclamation"},
        std::pair{BoxIcon::information, "information"}}) {
    answerNext("ОК", &box);
    ask({"Текст", "", icon});
    EXPECT_EQ(box, std::string(name) + "|VIRDDesAdv|Текст|ОК");
  }
}

TEST_F(ScreenOnDesktop, CarriageReturnsBreakLines) {
  EXPECT_EQ(desktop::toText(desktop::boxText("a\r\nb\rc\nd")), "a\nb\nc\nd");
}

TEST_F(ScreenOnDesktop, AnEndlessTextIsCut) {
  EXPECT_LT(desktop::boxText(std::string(1 << 20, 'x')).size(), 6000);
}

TEST_F(ScreenOnDesktop, MarkupInATextIsShownAsItStands) {
  std::string box;
  answerNext("ОК", &box);
  ask({"<b>a</b> & &b", ""});
  EXPECT_EQ(box, "none|VIRDDesAdv|<b>a</b> & &b|ОК");
}

TEST_F(ScreenOnDesktop, ABoxLiesOverTheTopmostWindow) {
  then([this] {
    then([this] {
      EXPECT_EQ(openBox()->parentWidget(), &dialog(control.dlgIsoCodes));
      press(Qt::Key_Return);
    });
    control.screen.showCritical("над диалогом", "");
    press(Qt::Key_Escape);
  });
  control.dlgIsoCodes.touch().showModal();
  then([this] {
    EXPECT_EQ(openBox()->parentWidget(), &mainWindow);
    press(Qt::Key_Return);
  });
  control.screen.showCritical("над главным окном", "");
}

TEST_F(ScreenOnDesktop, AModalFormReturnsWhenItHides) {
  std::vector<std::string> order;
  then([&] {
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog(control.dlgIsoCodes));
    order.push_back("shown");
    press(Qt::Key_Escape);
    order.push_back("hidden");
    EXPECT_FALSE(dialog(control.dlgIsoCodes).isVisible());
  });
  control.dlgIsoCodes.touch().showModal();
  order.push_back("returned");
  EXPECT_THAT(order, ElementsAre("shown", "hidden", "returned"));
  settle();
  EXPECT_EQ(QApplication::activeWindow(), &mainWindow);
}

TEST_F(ScreenOnDesktop, FormsCloseLastOpenedFirst) {
  std::vector<std::string> order;
  then([&] {
    then([&] {
      // Code hides the lower form while the upper one still runs.
      control.dlgSzczegoly.hide();
      order.push_back("lower hidden");
      press(Qt::Key_Escape);
    });
    control.dlgIsoCodes.touch().showModal();
    order.push_back("upper returned");
  });
  control.dlgSzczegoly.touch().showModal();
  order.push_back("lower returned");
  EXPECT_THAT(order, ElementsAre("lower hidden", "upper returned", "lower returned"));
}

TEST_F(ScreenOnDesktop, ADialogLiesOverWhatWasOnTop) {
  then([this] {
    EXPECT_EQ(dialog(control.dlgSzczegoly).parentWidget(), &mainWindow);
    then([this] {
      EXPECT_EQ(dialog(control.dlgIsoCodes).parentWidget(), &dialog(control.dlgSzczegoly));
      press(Qt::Key_Escape);
    });
    control.dlgIsoCodes.touch().showModal();
    press(Qt::Key_Escape);
  });
  control.dlgSzczegoly.touch().showModal();
  then([this] {
    EXPECT_EQ(dialog(control.dlgIsoCodes).parentWidget(), &mainWindow);
    press(Qt::Key_Escape);
  });
  control.dlgIsoCodes.touch().showModal();
}

TEST_F(ScreenOnDesktop, TheWindowFramesCloseIsTheFormsOwn) {
  for (Form* form_ :
       std::initializer_list<Form*>{&control.dlgIsoCodes.touch(), &control.dlgSzczegoly.touch(),
                                    &control.dlgDodaj.touch(), &control.dlgdodajPule}) {
    then([this, form_] { dialog(*form_).close(); });
    form_->showModal();
    EXPECT_FALSE(dialog(*form_).isVisible()) << form_->name();
  }
  EXPECT_EQ(control.dlgSzczegoly.DialogResult, 0);
}

TEST_F(ScreenOnDesktop, TheProgramsEndEndsWhatIsOpen) {
  then([this] {
    then([] { QCoreApplication::exit(0); });
    control.dlgIsoCodes.touch().showModal();
  });
  control.dlgSzczegoly.touch().showModal();
  EXPECT_FALSE(control.dlgSzczegoly.shown());
  EXPECT_FALSE(control.dlgIsoCodes.shown());
}

TEST_F(ScreenOnDesktop, TheWaitCursorComesAndGoes) {
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  control.screen.setCursor(Cursor::wait);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  control.screen.setCursor(Cursor::normal);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ScreenOnDesktop, LettingEventsRunRunsThemOnce) {
  int ran = 0;
  then([&] { ++ran; });
  control.screen.letEventsRun();
  EXPECT_EQ(ran, 1);
}

TEST_F(ScreenOnDesktop, EndingTheProgramIsRemembered) {
  EXPECT_FALSE(desktop.programEnded());
  control.screen.endProgram();
  EXPECT_TRUE(desktop.programEnded());
}

}  // namespace
}  // namespace awizo::test
