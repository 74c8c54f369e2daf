#include "desk/bringing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desk/partners.h"
#include "support/memory_files.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// A user who brings files into the folder and answers what he is asked.
struct BringingTest : ::testing::Test {
  BroughtPlace take(const std::string& name, const std::string& bytes) {
    return bring(files, "c:\\VIRD", {.name = name, .bytes = bytes},
                 [this](const Question& question) {
                   asked.push_back(question.text);
                   EXPECT_THAT(question.choices, ElementsAre(Choice::replace, Choice::cancel));
                   return answer;
                 });
  }

  MemoryFiles files;
  std::vector<std::string> asked;
  Choice answer = Choice::cancel;
};

constexpr std::string_view partnersFile = "9520001000010_9520002000019_partner_INFO.xml";

TEST_F(BringingTest, ADocumentStandsBesideWhatIsThere) {
  files.put("c:\\VIRD\\awizo.xml", "old");
  EXPECT_EQ(take("awizo.xml", "new").path, "c:\\VIRD\\awizo (2).xml");
  EXPECT_EQ(take("awizo.XML", "third").path, "c:\\VIRD\\awizo (3).xml");
  EXPECT_EQ(take("..awizo", "fourth").path, "c:\\VIRD\\awizo (4).xml");
  EXPECT_EQ(take("a/b\\c.xml", "fifth").path, "c:\\VIRD\\a_b_c.xml");
  EXPECT_EQ(files.readAll("c:\\VIRD\\awizo.xml"), "old");
  EXPECT_EQ(files.readAll("c:\\VIRD\\awizo (3).xml"), "third");
  EXPECT_TRUE(asked.empty());
}

TEST_F(BringingTest, APartnersFileReplacesTheOldOneOnlyWhereTheUserSaysSo) {
  const std::string path = "c:\\VIRD\\" + std::string(partnersFile);
  files.put(path, "old");
  const BroughtPlace refused = take(std::string(partnersFile), "new");
  EXPECT_EQ(refused.path, "");
  EXPECT_EQ(files.readAll(path), "old");
  EXPECT_THAT(asked, ElementsAre(HasSubstr(partnersFile)));
  answer = Choice::replace;
  const BroughtPlace taken = take(std::string(partnersFile), "new");
  EXPECT_EQ(taken.path, path);
  EXPECT_TRUE(taken.isNamed);
  EXPECT_EQ(files.readAll(path), "new");
}

TEST_F(BringingTest, TheSameFileAgainIsNoQuestion) {
  files.put("c:\\VIRD\\userinfo.xml", "same");
  EXPECT_EQ(take("UserInfo.XML", "same").path, "c:\\VIRD\\userinfo.xml");
  EXPECT_TRUE(asked.empty());
}

TEST(NameInFolder, IsTheControlsForTheSellersFileAndPartnersAlone) {
  EXPECT_EQ(nameInFolder("USERINFO.xml"), "userinfo.xml");
  EXPECT_EQ(nameInFolder("1_2_PARTNER_info.XML"), "1_2_partner_INFO.xml");
  EXPECT_EQ(nameInFolder(partnersFile), partnersFile);
  EXPECT_EQ(nameInFolder("_partner_INFO.xml"), "");
  EXPECT_EQ(nameInFolder("a/1_2_partner_INFO.xml"), "");
  EXPECT_EQ(nameInFolder("userinfo (1).xml"), "");
  EXPECT_EQ(nameInFolder(""), "");
}

}  // namespace
}  // namespace awizo::test
