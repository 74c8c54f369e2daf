#include <QApplication>
#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
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
  std::string agreement;
  answerNext("&Да", &agreement);
  waitForStart();
  const std::string origin = service.pageUrl().substr(0, service.pageUrl().find('/', 7));
  EXPECT_EQ(agreement,
            "question|VIRD|Редактор будет обмениваться документами со службой по адресу:"
            "\n\n" +
                origin + "\n\nЭтот адрес встречается впервые. Вы ему доверяете?|&Да,&Нет");
  EXPECT_EQ(form().txtNrZam.text(), "ЗК-2026/1147");
  EXPECT_EQ(shownText(widget().findChild<QWidget*>("lblUploadUrl")), form().UploadUrl);

  open(onLineOptions(service));
  EXPECT_TRUE(widget().hasStarted()) << "an agreed address isn't asked about again";
}

TEST_F(StartTest, ShowsNothingOfTheFormBehindItsQuestions) {
  const DemoService service(place.posted());
  show(onLineOptions(service));
  bool asked = false;
  then([&] {
    asked = true;
    for (const Control* control : form().controls()) {
      const QWidget* shown = face(*control).widget();
      EXPECT_TRUE(!shown->isVisible() || shown->visibleRegion().isEmpty()) << control->name();
    }
    press(Qt::Key_Return);
  });
  waitForStart();
  EXPECT_TRUE(asked);
  EXPECT_FALSE(face(form().txtNrAwiza).widget()->visibleRegion().isEmpty());
  EXPECT_FALSE(face(form().comboStawkaVAT).widget()->isVisible());
}

TEST_F(StartTest, WithoutTheUsersAgreementNothingIsSentAndTheStartPageSaysWhy) {
  const DemoService service(place.posted());
  show(onLineOptions(service));
  answerNext("&Нет");
  StartPage& page = waitForStartPage().page();
  EXPECT_EQ(page.lblWhy.caption(),
            "Сеанс со службой не начат: её адресу не доверено. Ничего не отправлено.");
  // The order still waits for who does agree.
  agreeTo(service);
  page.btnAgain.userClick();
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return window().hasSession() && form().txtNrZam.text() == "ЗК-2026/1147"; }, 30000));
}

TEST_F(StartTest, ThatWasDeclinedKeepsTheFolderOfWork) {
  const DemoService service(place.posted());
  show(onLineOptions(service));
  answerNext("&Нет");
  waitForStartPage();
  Options again = offLineOptions();
  again.offLinePath.reset();
  open(again);
  EXPECT_TRUE(widget().hasStarted());
  EXPECT_TRUE(form().enabled());
}

TEST_F(StartTest, ThatIsRefusedLeadsToTheStartPageWithTheReason) {
  Options options = offLineOptions();
  options.properties["PartnerILN"] = "1";
  show(options);
  answerNext("ОК");
  StartPage& page = waitForStartPage().page();
  EXPECT_EQ(page.lblWhy.caption(),
            "Начать не удалось. Нет или неправильный формат файла XML о партнёре.");
  EXPECT_TRUE(page.btnAgain.visible());
  EXPECT_EQ(page.cboxPartner.text(), "АО «Магазины рядом» (9520002000019)");
}

/// The program started by itself, without a launch file.
class StartPageInWindow : public ProgramTest {
 protected:
  Options bareOptions() const {
    Options options = offLineOptions();
    options.properties.clear();
    return options;
  }
  void begin(const Button& button) {
    click(window().startPage().faces().face(button));
    ASSERT_TRUE(QTest::qWaitFor([&] { return window().hasSession(); }, 10000));
    follow();
  }
};

TEST_F(StartPageInWindow, StandsWithoutAControlUntilTheUserBegins) {
  show(bareOptions());
  EXPECT_FALSE(window().hasSession());
  EXPECT_EQ(window().windowTitle(), "Подтверждение отгрузки");
  begin(window().startPage().page().btnOffLine);
  waitForStart();
  EXPECT_EQ(form().lblOnLineStatus.caption(), "Off-Line");
  EXPECT_EQ(form().lblNameKupWart.caption(), "АО «Магазины рядом»");
  EXPECT_TRUE(form().enabled());
  window().startAgain();
  waitForStartPage();
}

TEST_F(StartPageInWindow, OpensASavedDocumentAfterTheStart) {
  show(bareOptions());
  begin(window().startPage().page().btnOpen);
  bool dialogSeen = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    if (!control().dlgWczytajZapisz.shown()) return;
    dialogSeen = true;
    control().dlgWczytajZapisz.ImageZamknij.userClick();
  });
  look.start(10);
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialogSeen && form().enabled(); }, 10000));
}

TEST_F(StartPageInWindow, ClosesWithoutAQuestion) {
  show(bareOptions());
  settle();
  window().close();
  EXPECT_TRUE(isClosed());
}

TEST_F(StartPageInWindow, AFileThatIsGivenIsOpenedForItsBuyer) {
  std::filesystem::copy(AWIZO_SAMPLES "/despatch-advice.xml", place.folder() / "saved.xml");
  show(bareOptions());
  window().openFile(QString::fromStdString((place.folder() / "saved.xml").string()));
  ASSERT_TRUE(window().hasSession());
  // The reader tells of the packages that it forgets.
  answerWithEnter([&] {
    EXPECT_TRUE(QTest::qWaitFor([&] { return form().txtNrAwiza.text() == "ОТГ-0318"; }, 10000));
  });
}

TEST_F(StartPageInWindow, AFileThatIsNoDocumentIsNamed) {
  show(bareOptions());
  const auto file = place.folder() / "none.xml";
  window().openFile(QString::fromStdString(file.string()));
  EXPECT_FALSE(window().hasSession());
  EXPECT_NE(window().startPage().page().lblWhy.caption().find("none.xml"), std::string::npos);
}

TEST_F(StartPageInWindow, ALaunchFileThatIsRefusedIsNamed) {
  show(bareOptions());
  std::string box;
  answerNext("ОК", &box);
  window().openFile(QString::fromStdString((place.folder() / "bad.awizo").string()));
  EXPECT_NE(box.find("Файл запуска «bad.awizo» не годится."), box.npos) << box;
  EXPECT_FALSE(window().hasSession());
}

/// Drops files on the window as another program does.
void dropOn(QWidget& window, const QList<QUrl>& files) {
  QMimeData data;
  data.setUrls(files);
  const QPoint middle = window.rect().center();
  QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &enter);
  if (!enter.isAccepted()) return;
  QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &drop);
}

TEST_F(StartPageInWindow, AFileDroppedOnTheWindowIsOpened) {
  std::filesystem::copy(AWIZO_SAMPLES "/despatch-advice.xml", place.folder() / "saved.xml");
  const QUrl file =
      QUrl::fromLocalFile(QString::fromStdString((place.folder() / "saved.xml").string()));
  open(offLineOptions());
  dropOn(window(), {QUrl("https://portal.example/saved.xml")});
  dropOn(window(), {file, file});
  answerWithEnter([&] {
    EXPECT_FALSE(QTest::qWaitFor([&] { return !form().txtNrAwiza.text().empty(); }, 100));
    dropOn(window(), {file});
    EXPECT_TRUE(QTest::qWaitFor([&] { return form().txtNrAwiza.text() == "ОТГ-0318"; }, 10000));
  });
}

TEST_F(StartPageInWindow, AFileDroppedOnUnsentWorkIsAskedAbout) {
  open(offLineOptions());
  type("ТН-1");
  std::string box;
  const std::string file = (place.folder() / "saved.xml").string();
  dropOn(window(), {QUrl::fromLocalFile(QString::fromStdString(file))});
  answerNext("&Отмена", &box);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !box.empty(); }, 10000));
  EXPECT_NE(box.find("ТН-1 не отправлен"), box.npos);
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-1");
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

TEST_F(StartTest, WithoutAFolderAndAWillToSetOneLeadsToTheStartPage) {
  Options options = offLineOptions();
  options.offLinePath.reset();
  show(options);
  then([&] {
    then([&] { control().dlgWczytajZapisz.ImageZamknij.userClick(); });
    press(Qt::Key_Return);
  });
  EXPECT_EQ(waitForStartPage().page().lblWhy.caption(),
            "Сеанс не начат: папка с файлами вашей фирмы не выбрана.");
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
