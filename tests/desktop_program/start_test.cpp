#include <QApplication>
#include <QMessageBox>
#include <filesystem>

#include "desktop_program/program_test.h"

namespace awizo::test {
namespace {

class StartTest : public ProgramTest {};

TEST_F(StartTest, OffLineSendsNothingAndAsksNothing) {
  open(offLineOptions());
  EXPECT_TRUE(widget().hasStarted());
  EXPECT_EQ(form().lblOnLineStatus.caption(), "Off-Line");
  EXPECT_TRUE(form().enabled());
}

TEST_F(StartTest, OnLineShowsTheAddressFirstAndRemembersTheAgreement) {
  const DemoService service(place.posted());
  show(onLineOptions(service));
  std::string question;
  answerNext("&Да", &question);
  waitForStart();
  const std::string origin = service.pageUrl().substr(0, service.pageUrl().find('/', 7));
  EXPECT_EQ(question,
            "question|VIRD|Редактор будет обмениваться документами со службой по адресу:"
            "\n\n" +
                origin + "\n\nЭтот адрес встречается впервые. Вы ему доверяете?|&Да,&Нет");
  EXPECT_EQ(form().txtNrZam.text(), "ЗК-2026/1147");
  EXPECT_EQ(shownText(widget().findChild<QWidget*>("lblUploadUrl")), form().UploadUrl);

  open(onLineOptions(service));
  EXPECT_TRUE(widget().hasStarted()) << "an agreed address isn't asked about again";
}

TEST_F(StartTest, WithoutTheUsersAgreementNothingIsSent) {
  const DemoService service(place.posted());
  show(onLineOptions(service));
  answerNext("&Нет");
  waitForStart();
  EXPECT_FALSE(widget().hasStarted());
  EXPECT_FALSE(commands().action(form().btnWczytaj)->isEnabled());
  // The order still waits for who does agree.
  agreeTo(service);
  window().startAgain();
  EXPECT_TRUE(QTest::qWaitFor([&] { return form().txtNrZam.text() == "ЗК-2026/1147"; }, 30000));
}

TEST_F(StartTest, ThatWasDeclinedKeepsTheFolderOfWork) {
  const DemoService service(place.posted());
  show(onLineOptions(service));
  answerNext("&Нет");
  waitForStart();
  Options again = offLineOptions();
  again.offLinePath.reset();
  open(again);
  EXPECT_TRUE(widget().hasStarted());
  EXPECT_TRUE(form().enabled());
}

TEST_F(StartTest, WithoutAFolderLeadsToSettingOne) {
  Options options = offLineOptions();
  options.offLinePath.reset();
  show(options);
  std::string explanation;
  then([&] {
    explanation = seen(*openBox());
    then([&] {
      DlgWczytajZapisz& dialog = control().dlgWczytajZapisz;
      EXPECT_TRUE(dialog.shown());
      EXPECT_EQ(dialog.btnWczytaj.caption(), "&Ustaw");
      dialog.DirList.userOpen("c:" + place.folder().parent_path().string());
      dialog.ImageWczytaj.userClick();
    });
    press(Qt::Key_Return);
  });
  waitForStart();
  EXPECT_NE(explanation.find("Для работы нужна папка с файлами вашей фирмы."), std::string::npos);
  EXPECT_TRUE(widget().hasStarted());
  EXPECT_TRUE(form().enabled()) << "the folder's files were found";
  EXPECT_EQ(form().lblNameSprzedWart.caption(), "ООО «Товары каждый день»");
}

TEST_F(StartTest, WithoutAFolderAndAWillToSetOneDoesNotStart) {
  Options options = offLineOptions();
  options.offLinePath.reset();
  show(options);
  then([&] {
    then([&] { control().dlgWczytajZapisz.ImageZamknij.userClick(); });
    press(Qt::Key_Return);
  });
  waitForStart();
  EXPECT_FALSE(widget().hasStarted());
}

TEST_F(StartTest, AgainBeginsAFreshSession) {
  open(offLineOptions());
  window().startAgain();
  EXPECT_TRUE(QTest::qWaitFor([&] { return widget().hasStarted(); }, 10000));
  settle();
  EXPECT_EQ(form().focus(), &form().txtNrAwiza);
}

TEST_F(StartTest, TwoCopiesWorkInOneFolderAndKeepIt) {
  const DemoService service(place.posted());
  agreeTo(service);
  open(onLineOptions(service));
  bool started = false;
  {
    desktop::MainWindow other(onLineOptions(service));
    QObject::connect(&other.widget(), &desktop::AwizoWysylkiWidget::startEnded,
                     [&] { started = true; });
    other.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return started; }, 30000));
    EXPECT_TRUE(other.widget().control().form.enabled());
    // The one order there is went to the copy that came first.
    EXPECT_EQ(other.widget().control().form.txtNrZam.text(), "");
  }
  EXPECT_EQ(form().txtNrZam.text(), "ЗК-2026/1147");
  Options third = offLineOptions();
  third.offLinePath.reset();
  open(third);
  EXPECT_TRUE(form().enabled()) << "the folder is still set, and its files are whole";
}

}  // namespace
}  // namespace awizo::test
