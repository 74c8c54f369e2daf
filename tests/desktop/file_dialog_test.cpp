#include <QApplication>
#include <QComboBox>
#include <QListWidget>

#include "control_on_desktop.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

class FileDialogOnDesktop : public testing::Test, public ControlOnDesktop {
 protected:
  DlgWczytajZapisz& chooser = control.dlgWczytajZapisz;

  FileDialogOnDesktop() {
    files.put("c:\\home\\anna\\a.xml", "<a/>");
    files.put("c:\\home\\anna\\b.xml", "<b/>");
    files.putFolder("c:\\home\\anna\\Архив");
  }

  QListWidget* list(const Control& shown) { return qobject_cast<QListWidget*>(widget(shown)); }
  static std::vector<std::string> rows(const QListWidget* shown) {
    std::vector<std::string> texts;
    for (int row = 0; row < shown->count(); ++row) {
      texts.push_back(desktop::toText(shown->item(row)->text().trimmed()));
    }
    return texts;
  }
  QPoint at(const QListWidget* shown, int row) {
    return shown->visualItemRect(shown->item(row)).center();
  }
  /// Double-clicks the folder of this name.
  void openFolder(const QString& name) {
    QListWidget* folders = list(chooser.DirList);
    for (int row = 0; row < folders->count(); ++row) {
      if (folders->item(row)->text().trimmed() == name) {
        return doubleClick(folders->viewport(), at(folders, row));
      }
    }
    ADD_FAILURE() << "no folder " << desktop::toText(name);
  }
  void read(const std::function<void()>& act) {
    chooser.setUpForReading();
    then(act);
    chooser.showModal();
  }
};

TEST_F(FileDialogOnDesktop, ReadingShowsTheListsAndOneAcceptingButton) {
  read([this] {
    EXPECT_EQ(desktop::toText(dialog(chooser).windowTitle()), "Прочитать подтверждение отгрузки.");
    EXPECT_TRUE(widget(chooser.ImageWczytaj)->isVisible());
    EXPECT_FALSE(widget(chooser.ImageZapisz)->isVisible());
    EXPECT_FALSE(widget(chooser.txtAwizoPlik)->isVisible());
    EXPECT_FALSE(widget(chooser.lblOffLinePath)->isVisible());
    EXPECT_FALSE(widget(chooser.btnWczytaj)->isVisible());
    EXPECT_EQ(shownText(face(chooser.Drive)), "c:");
    EXPECT_THAT(rows(list(chooser.DirList)), ElementsAre("c:\\", "VIRD", "home"));
    press(Qt::Key_Escape);
  });
  EXPECT_EQ(session.LastFilePath, "");
}

TEST_F(FileDialogOnDesktop, AFileIsFoundAndReadByTheMouse) {
  read([this] {
    openFolder("home");
    openFolder("anna");
    EXPECT_EQ(chooser.DirList.path(), "c:\\home\\anna");
    EXPECT_THAT(rows(list(chooser.DirList)), ElementsAre("c:\\", "home", "anna", "Архив"));
    QListWidget* shown = list(chooser.FileList);
    EXPECT_THAT(rows(shown), ElementsAre("a.xml", "b.xml"));
    click(shown->viewport(), at(shown, 1));
    EXPECT_EQ(chooser.FileList.fileName(), "b.xml");
    click(face(chooser.ImageWczytaj));
    EXPECT_FALSE(dialog(chooser).isVisible());
  });
  EXPECT_EQ(session.LastFilePath, "c:\\home\\anna\\b.xml");
}

TEST_F(FileDialogOnDesktop, ADoubleClickOnAFileReadsIt) {
  read([this] {
    openFolder("home");
    openFolder("anna");
    QListWidget* shown = list(chooser.FileList);
    doubleClick(shown->viewport(), at(shown, 0));
    EXPECT_FALSE(dialog(chooser).isVisible());
  });
  EXPECT_EQ(session.LastFilePath, "c:\\home\\anna\\a.xml");
}

TEST_F(FileDialogOnDesktop, AFileIsFoundAndReadByTheKeyboardAlone) {
  read([this] {
    EXPECT_EQ(chooser.focus(), &chooser.Drive);
    press(Qt::Key_Tab);
    EXPECT_EQ(chooser.focus(), &chooser.DirList);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(chooser.DirList.path(), "c:\\home");
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    EXPECT_EQ(chooser.DirList.path(), "c:\\home\\anna");
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(chooser.FileList.fileName(), "b.xml");
    press(Qt::Key_Up);
    press(Qt::Key_Return);
  });
  EXPECT_EQ(session.LastFilePath, "c:\\home\\anna\\a.xml");
}

TEST_F(FileDialogOnDesktop, LeftLeadsToTheFolderAbove) {
  chooser.touch();
  chooser.DirList.setPath("c:\\home\\anna");
  read([this] {
    click(list(chooser.DirList)->viewport(), at(list(chooser.DirList), 2));
    press(Qt::Key_Left);
    EXPECT_EQ(chooser.DirList.path(), "c:\\home");
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(chooser.DirList.path(), "c:\\");
    press(Qt::Key_Escape);
  });
}

TEST_F(FileDialogOnDesktop, SavingTakesTheNameThatIsTyped) {
  chooser.touch();
  chooser.DirList.setPath("c:\\home\\anna");
  chooser.setUpForSaving("Подтверждение_отгрузки_7.xml");
  then([this] {
    EXPECT_EQ(shownText(face(chooser.txtAwizoPlik)), "Подтверждение_отгрузки_7.xml");
    EXPECT_TRUE(widget(chooser.ImageZapisz)->isVisible());
    EXPECT_FALSE(widget(chooser.ImageWczytaj)->isVisible());
    QListWidget* shown = list(chooser.FileList);
    click(shown->viewport(), at(shown, 0));
    EXPECT_EQ(shownText(face(chooser.txtAwizoPlik)), "a.xml");
    typeOver(face(chooser.txtAwizoPlik), "новый.xml");
    press(Qt::Key_Return);
  });
  chooser.showModal();
  EXPECT_EQ(session.LastFilePath, "c:\\home\\anna\\новый.xml");
}

TEST_F(FileDialogOnDesktop, TheFolderOfOffLineWorkFollowsTheFolderList) {
  chooser.setUpForOffLineFolder();
  then([this] {
    EXPECT_EQ(shownText(face(chooser.lblOffLinePath)), "c:\\VIRD");
    openFolder("home");
    EXPECT_EQ(shownText(face(chooser.lblOffLinePath)), "c:\\home\\VIRD");
    click(face(chooser.ImageWczytaj));
  });
  chooser.showModal();
  EXPECT_EQ(session.OffLinePathValue, "c:\\home\\VIRD");
  EXPECT_TRUE(files.folderExists("c:\\home\\VIRD"));
}

TEST_F(FileDialogOnDesktop, TheClosingPictureChoosesNothing) {
  read([this] {
    openFolder("home");
    click(face(chooser.ImageZamknij));
  });
  EXPECT_EQ(session.LastFilePath, "");
}

TEST_F(FileDialogOnDesktop, AFolderThatCantBeReadIsTold) {
  files.putFolder("c:\\home\\closed");
  std::string box;
  read([&] {
    openFolder("home");
    files.failReading("c:\\home\\closed", errors::permissionDenied());
    answerNext("ОК", &box);
    openFolder("closed");
    EXPECT_THAT(rows(list(chooser.DirList)), ElementsAre("c:\\", "home", "closed"));
    press(Qt::Key_Escape);
  });
  EXPECT_EQ(box, "critical|VIRD|Permission denied|ОК");
}

TEST_F(FileDialogOnDesktop, FoldersMadeSinceAreSeenAtTheNextOpening) {
  read([] { press(Qt::Key_Escape); });
  files.putFolder("c:\\new");
  read([this] {
    EXPECT_THAT(rows(list(chooser.DirList)), ElementsAre("c:\\", "VIRD", "home", "new"));
    press(Qt::Key_Escape);
  });
}

TEST_F(FileDialogOnDesktop, TypingFindsAFolderAndAFile) {
  read([this] {
    tabTo(chooser.DirList);
    type("ho");
    EXPECT_EQ(list(chooser.DirList)->currentItem()->text().trimmed(), "home");
    press(Qt::Key_Return);
    type("an");
    press(Qt::Key_Return);
    EXPECT_EQ(chooser.DirList.path(), "c:\\home\\anna");
    tabTo(chooser.FileList);
    type("b");
    EXPECT_EQ(chooser.FileList.fileName(), "b.xml");
    press(Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace awizo::test
