// A disk that is full and a folder that turns read-only while the user works: the message, the old
// file as it was, and a control that goes on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/files/files.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

constexpr const char* diskFull = "Произошла ошибка в btnZapisz_Click()|critical|Disk full";
constexpr const char* denied = "Произошла ошибка в btnZapisz_Click()|critical|Permission denied";

class DiskFault : public testing::Test {
 protected:
  DiskFault() { writeFile(target, "old"); }

  void save(Conversation& editor) const { saveAs(editor, target.string()); }
  void saveAgain(Conversation& editor) const {
    openSavingAgain(editor);
    save(editor);
  }
  /// The folder holds the old document and nothing else.
  void expectNothingChanged(Conversation& editor) const {
    EXPECT_EQ(readFile(target), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(supplier.place.documents()), {}), 1);
    EXPECT_EQ(editor.get("control")["Enabled"], true);
    EXPECT_EQ(editor.get("cursor"), "default");
  }
  void expectSaved() const {
    EXPECT_TRUE(readFile(target).starts_with("<Document-DespatchAdvice>"));
  }

  Supplier supplier;
  const fs::path target = supplier.place.documents() / "document.xml";
};

TEST_F(DiskFault, WithNoRoomForTheFileTellsDiskFull) {
  // A shell's limit of no block at all acts as a disk that has none left.
  Conversation editor =
      supplier.startOffLine({}, {"/bin/sh", "-c", "ulimit -f 0; trap '' XFSZ; exec \"$0\" \"$@\""});
  openSaving(editor);
  save(editor);
  EXPECT_THAT(editor.answerAll(), ElementsAre(diskFull));
  expectNothingChanged(editor);
  EXPECT_EQ(editor.finish(), 0);
}

/// A disk of its own under the folder of documents; only root can have that.
class SmallDisk : public DiskFault {
 protected:
  void SetUp() override {
    mounted_ = mount("none", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
    if (!mounted_) GTEST_SKIP() << "no right to mount";
    writeFile(target, "old");
  }
  ~SmallDisk() override {
    if (mounted_) umount2(folder.c_str(), MNT_DETACH);
  }
  void fillUp() const {
    EXPECT_THROW(writeFile(folder / "other", std::string(128 * 1024, 'x')), std::runtime_error);
  }
  void remount(unsigned long flags) const {
    ASSERT_EQ(mount("none", folder.c_str(), "tmpfs", MS_REMOUNT | flags, "size=64k"), 0);
  }

  const fs::path folder = supplier.place.documents();

 private:
  bool mounted_ = false;
};

TEST_F(SmallDisk, ThatIsFullTellsItAndSavesOnceThereIsRoom) {
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  fillUp();
  save(editor);
  EXPECT_THAT(editor.answerAll(), ElementsAre(diskFull));
  fs::remove(folder / "other");
  expectNothingChanged(editor);
  saveAgain(editor);
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  expectSaved();
}

TEST_F(SmallDisk, ThatTurnsReadOnlyTellsItAndSavesOnceItIsWritable) {
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  remount(MS_RDONLY);
  save(editor);
  EXPECT_THAT(editor.answerAll(), ElementsAre(denied));
  expectNothingChanged(editor);
  remount(0);
  saveAgain(editor);
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  expectSaved();
}

/// A folder that its owner may not write to. Root may all the same, so the editor is started
/// without that right of root's.
class ForbiddenFolder : public DiskFault {
 protected:
  ForbiddenFolder() {
    if (geteuid() != 0) return;
    launcher = {"/usr/bin/setpriv", "--bounding-set=-dac_override,-dac_read_search",
                "--inh-caps=-dac_override,-dac_read_search"};
  }
  ~ForbiddenFolder() override { fs::permissions(folder, fs::perms::owner_all); }

  const fs::path folder = supplier.place.documents();
  std::vector<std::string> launcher;
};

TEST_F(ForbiddenFolder, ThatTurnsReadOnlyTellsItAndSavesOnceItIsAllowed) {
  Conversation editor = supplier.startOffLine({}, launcher);
  openSaving(editor);
  fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
  save(editor);
  EXPECT_THAT(editor.answerAll(), ElementsAre(denied));
  expectNothingChanged(editor);
  fs::permissions(folder, fs::perms::owner_all);
  saveAgain(editor);
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  expectSaved();
}

TEST_F(DiskFault, AFolderThatIsRemovedMeanwhileTellsIt) {
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  fs::remove_all(supplier.place.documents());
  save(editor);
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("Произошла ошибка в btnZapisz_Click()|critical|Path not found"));
  EXPECT_EQ(editor.get("control")["Enabled"], true);
}

}  // namespace
}  // namespace awizo::test
