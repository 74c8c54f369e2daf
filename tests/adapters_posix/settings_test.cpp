#include <sys/stat.h>

#include <fstream>

#include "adapters/posix/settings_stores.h"
#include "support/files/temporary_folder.h"
#include "tests/adapters_posix/ordinary_user.h"

namespace awizo {
namespace {

using test::errorNumberOf;

class SettingsFileTest : public testing::Test {
 protected:
  test::TemporaryFolder folder;
  std::string path = folder.path() / "config" / "awizo" / "settings";
  SettingsFile settings{path};

  std::string read(const std::string& key) {
    return settings.read("VIRD", "VirdActiveX", key, "-");
  }
};

TEST_F(SettingsFileTest, WhatWasNeverWrittenIsTheDefault) { EXPECT_EQ(read("OffLinePath"), "-"); }

TEST_F(SettingsFileTest, AValueOutlivesTheProgram) {
  settings.write("VIRD", "VirdActiveX", "OffLinePath", "c:\\home\\анна");
  EXPECT_EQ(SettingsFile(path).read("VIRD", "VirdActiveX", "OffLinePath", ""), "c:\\home\\анна");
}

TEST_F(SettingsFileTest, AValueIsKeptByApplicationSectionAndKey) {
  settings.write("VIRD", "VirdActiveX", "a", "1");
  settings.write("VIRD", "VirdActiveX", "b", "2");
  settings.write("VIRD", "other", "a", "3");
  settings.write("other", "VirdActiveX", "a", "4");
  settings.write("VIRD", "VirdActiveX", "a", "5");
  EXPECT_EQ(read("a"), "5");
  EXPECT_EQ(read("b"), "2");
  EXPECT_EQ(settings.read("VIRD", "other", "a", ""), "3");
  EXPECT_EQ(settings.read("other", "VirdActiveX", "a", ""), "4");
}

TEST_F(SettingsFileTest, AnyTextIsAValueAndAName) {
  const std::string text = " =/\\ \\n\r\n\n\\\\=\t\"я\" ";
  settings.write("VIRD", "VirdActiveX", "a", text);
  settings.write("a/b", "c", text, "x");
  settings.write("VIRD", "VirdActiveX", "empty", "");
  EXPECT_EQ(read("a"), text);
  EXPECT_EQ(settings.read("a/b", "c", text, ""), "x");
  EXPECT_EQ(settings.read("a", "b/c", text, "-"), "-");
  EXPECT_EQ(read("empty"), "");
}

TEST_F(SettingsFileTest, LinesThatAreNoneArePassedOver) {
  settings.write("VIRD", "VirdActiveX", "a", "1");
  std::ofstream(path, std::ios::app) << "nonsense\n\nVIRD/VirdActiveX/b=2";
  EXPECT_EQ(read("a"), "1");
  EXPECT_EQ(read("b"), "2");
}

TEST_F(SettingsFileTest, AFileThatCantBeReadGivesTheDefault) {
  std::filesystem::create_directories(path);
  EXPECT_EQ(read("a"), "-");
}

TEST_F(SettingsFileTest, AFileThatCantBeWrittenRaisesAnErrorAndKeepsTheOldValues) {
  settings.write("VIRD", "VirdActiveX", "a", "1");
  const std::filesystem::path configuration = std::filesystem::path(path).parent_path();
  chmod(configuration.c_str(), 0555);
  chmod((folder.path() / "config").c_str(), 0755);
  test::expectErrorForOrdinaryUser(
      70, [&] { SettingsFile(path).write("VIRD", "VirdActiveX", "a", "2"); });
  EXPECT_EQ(read("a"), "1");
}

TEST(SettingsPath, LiesInTheUsersConfigurationFolder) {
  setenv("HOME", "/home/anna", 1);
  setenv("XDG_CONFIG_HOME", "/home/anna/configuration", 1);
  EXPECT_EQ(SettingsFile::usersOwnPath(), "/home/anna/configuration/awizo/settings");
  setenv("XDG_CONFIG_HOME", "not/whole", 1);
  EXPECT_EQ(SettingsFile::usersOwnPath(), "/home/anna/.config/awizo/settings");
  unsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(SettingsFile::usersOwnPath(), "/home/anna/.config/awizo/settings");
}

}  // namespace
}  // namespace awizo
