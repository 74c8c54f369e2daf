#include "session/local_folder.h"

namespace awizo::test {
namespace {

TEST(LocalFiles, StandInTheLocalFolder) {
  EXPECT_EQ(userInfoFile("c:\\VIRD"), "c:\\VIRD\\userinfo.xml");
  EXPECT_EQ(partnerInfoFile("c:\\VIRD", "111", "222"), "c:\\VIRD\\111_222_partner_INFO.xml");
  EXPECT_EQ(partnerInfoFile("c:\\VIRD", "", ""), "c:\\VIRD\\__partner_INFO.xml");
}

TEST(LocalFiles, StayInTheLocalFolderWhateverTheirNamesAreMadeOf) {
  EXPECT_EQ(partnerInfoFile("c:\\VIRD", "..\\..\\a", "/b"),
            "c:\\VIRD\\.._.._a__b_partner_INFO.xml");
  EXPECT_EQ(debugLogFile("c:\\VIRD", "..\\../x\\"), "c:\\VIRD\\.._.._x_Awizo.log");
}

TEST(LocalFiles, LogBearsThePartnersName) {
  EXPECT_EQ(debugLogFile("c:\\VIRD", "X"), "c:\\VIRD\\XAwizo.log");
  EXPECT_EQ(debugLogFile("c:\\VIRD", ""), "c:\\VIRD\\Awizo.log");
}

}  // namespace
}  // namespace awizo::test
