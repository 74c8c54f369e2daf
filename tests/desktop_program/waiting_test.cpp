#include <QApplication>
#include <QTimer>
#include <set>

#include "desktop_program/program_test.h"

namespace awizo::test {
namespace {

class WaitingTest : public ProgramTest {};

TEST_F(WaitingTest, TheWindowTellsWhatItDoesKeepsPaintingAndTakesNoInput) {
  const DemoService service(place.posted(), {"--fault", "catalogue=slow:700"});
  agreeTo(service);
  show(onLineOptions(service));
  std::set<std::string> told;
  std::set<int> positions;
  bool waitCursor = true;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    const desktop::Waiting& waiting = widget().waiting();
    if (!waiting.lasts()) return;
    told.insert(desktop::toText(waiting.text()));
    positions.insert(waiting.bar().position());
    EXPECT_TRUE(widget().findChild<QWidget*>("waitingPanel")->isVisible());
    const QCursor* cursor = QApplication::overrideCursor();
    waitCursor = waitCursor && cursor != nullptr && cursor->shape() == Qt::WaitCursor;
    if (QWidget* field = face(form().txtNrAwiza).widget(); field->isVisible()) {
      QTest::keyClick(field, Qt::Key_1);
      QTest::keyClick(field, Qt::Key_Escape);
      QTest::mouseClick(face(form().btnWczytaj).widget(), Qt::LeftButton);
    }
  });
  look.start(15);
  waitForStart();
  look.stop();
  EXPECT_TRUE(told.contains("Загрузка каталога…"));
  EXPECT_GE(positions.size(), 5u) << "the bar moves while the service lets us wait";
  EXPECT_TRUE(waitCursor);
  EXPECT_EQ(form().txtNrAwiza.text(), "");
  EXPECT_EQ(form().txtNrZam.text(), "ЗК-2026/1147") << "Escape ended nothing";
  EXPECT_FALSE(widget().findChild<QWidget*>("waitingPanel")->isVisible());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(WaitingTest, ABoxDuringTheStartIsAnsweredAsAnyOther) {
  const DemoService service(place.posted(), {"--fault", "partner-info=drop"});
  agreeTo(service);
  show(onLineOptions(service));
  const std::vector<std::string> boxes = answerWithEnter([this] { waitForStartPage(); });
  ASSERT_FALSE(boxes.empty());
  EXPECT_EQ(boxes.back(), "critical|VIRD|Неправильный формат XML партнёр инфо.|ОК");
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  window().close();
  EXPECT_TRUE(isClosed()) << "nothing to lose";
}

}  // namespace
}  // namespace awizo::test
