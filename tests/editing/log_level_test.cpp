#include "support/control/desk.h"

namespace awizo::test {
namespace {

/// Adds, changes and removes a package and a line that lies in it; a customs number has a date.
void workThroughLinesAndPackages(Desk& desk) {
  desk.addPackage({.description = "Поддон"});
  desk.face.onModal([&] {
    desk.type(LineEntry{});
    desk.lineDialog.txtCDN1.userType("12345678");
    desk.lineDialog.txtCDN3.userType("1234567");
    desk.assign(0, "5");
    desk.lineDialog.btnDodaj.userClick();
  });
  desk.form.btnDodaj.userClick();
  desk.editPackage([] {});
  desk.editLine([] {});
  desk.form.btnUsunOpak.userClick();
  desk.form.btnUsun.userClick();
  EXPECT_EQ(desk.session.LineCount + desk.session.IloscPozycjiOpak, 0);
  EXPECT_THAT(desk.takeBoxes(), ::testing::IsEmpty());
}

TEST(LogOfLinesAndPackages, TellsOnLevelFourAlone) {
  Desk below("ru_RU", "3");
  workThroughLinesAndPackages(below);
  EXPECT_EQ(below.logText(), "21.11.2026 10:15 Start logowania...\r\n");
  Desk whole("ru_RU", "4");
  workThroughLinesAndPackages(whole);
  for (const char* told :
       {"btnDodajOpak_Click: IloscPozycjiOpak", "btnDodajOpak_Click: i - 1",
        "Edycja: cdnTab(1)=", "Edycja-DD: ", "GetPackagesRec: currSerial",
        "GRD_OPAK_PARENT_SERIAL[", "After GetPackagesRec", "delSerials.Count", "delSerials[",
        "Usun opak - wyczysc grd", "usuwanie ref przed", "usuwanie ref po",
        "RemoveOldPackRef - INPUT", "GetPackedQuantity - INPUT"}) {
    EXPECT_THAT(whole.logText(), ::testing::HasSubstr(told));
  }
}

}  // namespace
}  // namespace awizo::test
