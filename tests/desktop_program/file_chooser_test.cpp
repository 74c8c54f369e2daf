#include "hosts/desktop/window/file_chooser.h"

#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <filesystem>
#include <fstream>

#include "desktop_program/program_test.h"

namespace awizo::test {
namespace {

namespace fs = std::filesystem;

/// A user with a home folder of his own.
class FileChooserTest : public ProgramTest {
 protected:
  FileChooserTest() {
    fs::create_directories(home / "Documents");
    std::ofstream(home / "a.xml") << "<a/>";
    qputenv("HOME", home.c_str());
  }
  ~FileChooserTest() override { qputenv("HOME", earlier_); }

  DlgWczytajZapisz& chooser() { return control().dlgWczytajZapisz; }
  static std::string classic(const fs::path& path) {
    return desktop::toText("c:" + QString::fromStdString(path.string()).replace('/', '\\'));
  }
  /// The button above the lists that has these words.
  static QToolButton* placeNamed(const QString& name) {
    for (auto* button : QApplication::activeModalWidget()->findChildren<QToolButton*>()) {
      if (button->accessibleName() == name) return button;
    }
    ADD_FAILURE() << "no place " << desktop::toText(name);
    return nullptr;
  }
  /// Acts in the dialog that Ctrl+O opens.
  void inReading(const std::function<void()>& act) {
    then([act] {
      act();
      press(Qt::Key_Escape);
    });
    press(Qt::Key_O, Qt::ControlModifier);
    settle();
  }

  const fs::path home = place.folder().parent_path() / "anna";

 private:
  QByteArray earlier_ = qgetenv("HOME");
};

void expectWholeInSight() {
  for (const auto* area : QApplication::activeModalWidget()->findChildren<QScrollArea*>()) {
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
  }
}

TEST_F(FileChooserTest, LeavesTheWholeDialogInSight) {
  open(offLineOptions());
  inReading(expectWholeInSight);
}

TEST_F(FileChooserTest, GrowsWhereMoreIsShownThanTheLastTime) {
  open(offLineOptions());
  inReading([] {});
  then([this] {
    EXPECT_TRUE(chooser().lblOffLinePath.visible());
    expectWholeInSight();
    press(Qt::Key_Escape);
  });
  widget().askOffLineFolder();
}

TEST_F(FileChooserTest, BeginsInTheDocumentsAndStaysWhereTheUserWent) {
  open(offLineOptions());
  inReading([this] {
    EXPECT_EQ(chooser().DirList.path(), classic(home / "Documents"));
    click(placeNamed("Домашняя папка"));
    EXPECT_EQ(chooser().DirList.path(), classic(home));
    EXPECT_EQ(chooser().FileList.rows(), std::vector<std::string>{"a.xml"});
  });
  inReading([this] { EXPECT_EQ(chooser().DirList.path(), classic(home)); });
}

TEST_F(FileChooserTest, ComesBackToTheFolderAndOffersTheFileUsedLast) {
  open(offLineOptions());
  then([this] {
    click(placeNamed("Домашняя папка"));
    chooser().FileList.userChoose(0);
    then([] { press(Qt::Key_Return); });
    press(Qt::Key_Return);
  });
  press(Qt::Key_O, Qt::ControlModifier);
  settle();
  open(offLineOptions());
  inReading([this] {
    EXPECT_EQ(chooser().DirList.path(), classic(home));
    chooser().DirList.userOpen(classic(home / "Documents"));
    const QToolButton* recent = placeNamed("Недавние");
    ASSERT_NE(recent, nullptr);
    ASSERT_EQ(recent->menu()->actions().size(), 1);
    recent->menu()->actions().front()->trigger();
    EXPECT_EQ(chooser().DirList.path(), classic(home));
    EXPECT_EQ(chooser().FileList.fileName(), "a.xml");
  });
}

TEST_F(FileChooserTest, TheFolderOfOffLineWorkIsProposedAtHome) {
  open(offLineOptions());
  then([this] {
    EXPECT_EQ(chooser().lblOffLinePath.text(), classic(home / "VIRD"));
    press(Qt::Key_Escape);
  });
  widget().askOffLineFolder();
}

}  // namespace
}  // namespace awizo::test
