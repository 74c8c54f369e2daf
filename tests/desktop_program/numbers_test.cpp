#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <filesystem>

#include "adapters/memory/fixed_clock.h"
#include "adapters/posix/posix_record_folder.h"
#include "adapters/posix/posix_shared_store.h"
#include "desktop_program/program_test.h"
#include "numbers/given_numbers.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

namespace fs = std::filesystem;

class NumbersTest : public ProgramTest {
 protected:
  NumbersTest() { numbers.setRange({"3", "9520001", 1, 1000, 1}); }
  ~NumbersTest() override { close(); }

  DlgSzczegoly& dialog() { return control().dlgSzczegoly; }

  void opening(const std::function<void()>& inside) {
    then(inside);
    form().btnDodajOpak.userClick();
  }

  /// What the window says besides the dialog's own fields.
  std::string wordsShown() const {
    for (const QLabel* label : QApplication::activeModalWidget()->findChildren<QLabel*>()) {
      const std::string text = label->text().toStdString();
      if (label->isVisible() && text.find("осталось") != text.npos) return text;
    }
    return "";
  }

  PosixRecordFolder folder{(place.folder() / "records").string()};
  PosixSharedStore store{(place.settings().string() + "-numbers-")};
  FixedClock clock{{makeDate(2026, 11, 21), {10, 15, 0}}};
  GivenNumbers numbers{store, clock};
};

TEST_F(NumbersTest, ThePackageDialogOffersTheNextOne) {
  open(offLineOptions());
  opening([this] {
    EXPECT_EQ(dialog().txtSerialNumberN.text(), "395200010000000011");
    EXPECT_EQ(wordsShown(), "осталось номеров: 999");
    EXPECT_EQ(dialog().focus(), &dialog().cboxPackageType);
    dialog().userClose();
  });
  EXPECT_EQ(numbers.range()->next, 2U) << "it was stored before it was shown";
  // Another window of the same user gets another one.
  EXPECT_EQ(numbers.take(1, "").front(), "395200010000000028");
}

TEST_F(NumbersTest, TheDialogHasRoomForWhatIsSaidOfThem) {
  open(offLineOptions());
  opening([this] {
    letLayoutsSettle();
    for (const QScrollArea* area :
         QApplication::activeModalWidget()->findChildren<QScrollArea*>()) {
      EXPECT_FALSE(area->verticalScrollBar()->isVisible());
    }
    dialog().userClose();
  });
}

TEST_F(NumbersTest, AReplayTakesNone) {
  DemoService service(place.posted());
  agreeTo(service);
  records = &folder;
  open(onLineOptions(service));
  opening([this] {
    dialog().txtPackageDesc.userType("Коробка");
    dialog().cboxILNLokalizacji.userType("9520002001016");
    dialog().btnDodaj.userClick();
  });
  fs::copy(place.folder() / "records", place.folder() / "kept", fs::copy_options::recursive);
  close();
  fs::remove_all(place.folder() / "records");
  fs::rename(place.folder() / "kept", place.folder() / "records");
  std::string asked;
  answerNext("&Продолжить", &asked);
  open(onLineOptions(service));
  EXPECT_EQ(form().grdOpakowania.cell(1, GRD_OPAK_SERIAL_NUMBER), "395200010000000011");
  EXPECT_EQ(numbers.range()->next, 2U);
  opening([this] {
    EXPECT_EQ(dialog().txtSerialNumberN.text(), "395200010000000028");
    dialog().userClose();
  });
  close();
}

TEST_F(NumbersTest, TheRangeIsSetFromTheMenu) {
  open(offLineOptions());
  then([] {
    press(Qt::Key_End);
    type("7");
    press(Qt::Key_Return);
  });
  widget().showNumberRange();
  EXPECT_EQ(numbers.range()->prefix, "95200017");
}

}  // namespace
}  // namespace awizo::test
