#include "support/control/test_control.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ControlShell : public ::testing::Test, public TestControl {};

using Initialize = ControlShell;

std::vector<int> widths(const Table& table) {
  std::vector<int> found;
  for (int column = 0; column < table.columns(); ++column) {
    found.push_back(table.columnWidth(column));
  }
  return found;
}

/// Columns whose cell in row 1 is centred.
std::vector<int> centredColumns(const Table& table) {
  std::vector<int> found;
  for (int column = 0; column < table.columns(); ++column) {
    if (table.columnAlignment(column) == Alignment::centre) found.push_back(column);
  }
  return found;
}

TEST_F(Initialize, OffersThreePackageDescriptionsAndSelectsNone) {
  control.UserControl_Initialize();
  EXPECT_THAT(
      form.cboxPackageDescription.rows(),
      ElementsAre("Возвратная тара(EAN код)", "Тара ISO 1 - 1/1 Евро Тара (EAN код)", "Упаковка"));
  EXPECT_EQ(form.cboxPackageDescription.index(), -1);
  EXPECT_EQ(form.cboxPackageDescription.text(), "");
}

TEST_F(Initialize, HidesEveryColumnButTheOnesThatTheUserSees) {
  control.UserControl_Initialize();
  EXPECT_EQ(widths(form.grdOpakowania),
            (std::vector<int>{525, 0, 1150, 4605, 950, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  std::vector<int> lines(23, 0);
  lines[0] = 525;
  lines[1] = 1850;
  lines[2] = 4625;
  lines[4] = 2200;
  lines[21] = 1900;
  EXPECT_EQ(widths(form.grdPozycje), lines);
  EXPECT_EQ(widths(form.grdSuma), (std::vector<int>{1800, 3300, 0}));
}

TEST_F(Initialize, CentresColumns) {
  control.UserControl_Initialize();
  EXPECT_THAT(centredColumns(form.grdOpakowania), ElementsAre(2, 4, 13));
  EXPECT_THAT(centredColumns(form.grdPozycje), ElementsAre(1, 2));
  EXPECT_THAT(centredColumns(form.grdSuma), ElementsAre(0, 1, 2));
  EXPECT_EQ(form.grdOpakowania.look(1, 4).alignment, Alignment::centre);
  EXPECT_EQ(form.grdPozycje.look(1, 4).alignment, Alignment::left);
}

TEST_F(Initialize, LeavesEmptyTablesOfTwoRowsWithTheirHeadings) {
  control.UserControl_Initialize();
  for (const Table* table : {&form.grdPozycje, &form.grdOpakowania, &form.grdSuma}) {
    EXPECT_EQ(table->rows(), 2);
    EXPECT_EQ(table->fixedRows(), 1);
    EXPECT_EQ(table->cell(1, 0), "");
  }
  EXPECT_EQ(form.grdPozycje.cell(0, GRD_POZ_QTY_DESPATCHED), "Количество отгружено");
  EXPECT_EQ(form.grdOpakowania.cell(0, GRD_OPAK_DESC), "Описание упаковки");
  EXPECT_EQ(form.grdSuma.cell(0, GRD_SUMA_LINE_COUNT), "Количество строк");
}

TEST_F(Initialize, NotesTheRowHeightAndEmptiesTheTableEditor) {
  form.txtEdycja.setText("left over");
  control.UserControl_Initialize();
  EXPECT_EQ(form.GridRowHeight, 240);
  EXPECT_EQ(form.txtEdycja.text(), "");
}

TEST_F(Initialize, ShowsTheVersion) {
  EXPECT_EQ(form.lblVersion.caption(), "VIRDDesAdv 0.0.0.0");
  control.UserControl_Initialize();
  EXPECT_EQ(form.lblVersion.caption(), "VIRDDesAdv 1.2.0.3");
}

TEST_F(Initialize, TakesTheCursorForLongWork) {
  control.UserControl_Initialize();
  EXPECT_EQ(session.WaitCursor, Cursor::wait);
  EXPECT_THAT(face.cursors(), IsEmpty());
}

TEST_F(Initialize, FindsTheDecimalSeparatorOfTheMachine) {
  control.UserControl_Initialize();
  EXPECT_EQ(session.DecimalSeparator, ",");
}

TEST(InitializeInAPointLocale, FindsThePoint) {
  TestControl american("en_US");
  american.control.UserControl_Initialize();
  EXPECT_EQ(american.session.DecimalSeparator, ".");
}

TEST_F(Initialize, EndsTheProgramAfterAnError) {
  form.lblVersion.observers.add([](const Change&) { throw errors::outOfMemory(); });
  control.UserControl_Initialize();
  EXPECT_THAT(boxes(), ElementsAre("Bі№d w UserControl_Initialize()|critical|OK|Out of memory\\r"
                                   "Уверьтесь, что все необходимые компоненты заинсталированы."));
  EXPECT_TRUE(face.programEnded);
}

TEST_F(Initialize, EndsTheProgramForWantOfMemory) {
  form.lblVersion.observers.add([](const Change&) { throw std::bad_alloc(); });
  control.UserControl_Initialize();
  EXPECT_THAT(face.texts(), ElementsAre(::testing::StartsWith("Out of memory\r")));
  EXPECT_TRUE(face.programEnded);
}

TEST_F(Initialize, GoesOnWithTheProgramWithoutAnError) {
  control.UserControl_Initialize();
  EXPECT_FALSE(face.programEnded);
}

using Properties = ControlShell;

TEST_F(Properties, AreReadFromTheBag) {
  bag.values = {{"OnLine", "Off"},
                {"DebugLevel", "4"},
                {"PartnerName", "X"},
                {"PartnerILN", "9520002000019"},
                {"PartnerURL", "partner"}};
  create();
  EXPECT_EQ(control.OnLine(), "Off");
  EXPECT_EQ(control.DebugLevel(), "4");
  EXPECT_EQ(form.PartnerName, "X");
  EXPECT_EQ(control.dlgDodaj.LinePartnerName, "X");
  EXPECT_EQ(form.PartnerILN, "9520002000019");
  EXPECT_EQ(session.BuyerILN, "9520002000019");
  EXPECT_EQ(form.PartnerURL, "partner");
}

TEST_F(Properties, HandingOverThePartnersNameLoadsNoDialog) {
  bag.values["PartnerName"] = "X";
  create();
  EXPECT_FALSE(control.dlgDodaj.loaded());
}

TEST_F(Properties, ThatTheBagLacksReadAsEmptyAndMeanOnLineWithoutALog) {
  create();
  EXPECT_EQ(control.OnLine(), "");
  EXPECT_EQ(control.DebugLevel(), "");
  EXPECT_EQ(session.BuyerILN, "");
  EXPECT_EQ(form.lblOnLineStatus.caption(), "On-Line");
  EXPECT_TRUE(form.btnPrzeslij.visible());
}

TEST_F(Properties, OffMeansOffLine) {
  bag.values["OnLine"] = "Off";
  create();
  EXPECT_EQ(form.lblOnLineStatus.caption(), "Off-Line");
  EXPECT_FALSE(form.btnPrzeslij.visible());
}

TEST_F(Properties, OffInOtherLettersMeansOnLine) {
  for (const char* value : {"off", "OFF", "Off ", "On", "0"}) {
    bag.values["OnLine"] = value;
    create();
    EXPECT_EQ(form.lblOnLineStatus.caption(), "On-Line") << value;
    EXPECT_TRUE(form.btnPrzeslij.visible()) << value;
  }
}

TEST_F(Properties, ReadingReportsNoChangeToTheHost) {
  bag.values["OnLine"] = "Off";
  create();
  EXPECT_THAT(host.changedProperties, IsEmpty());
}

TEST_F(Properties, AFailedReadLeavesItsFieldAndTheNextIsStillRead) {
  bag.values = {{"OnLine", "Off"},
                {"DebugLevel", "4"},
                {"PartnerName", "X"},
                {"PartnerILN", "222"},
                {"PartnerURL", "p"}};
  for (const char* failing : {"OnLine", "DebugLevel", "PartnerName", "PartnerILN", "PartnerURL"}) {
    TestControl other;
    other.bag.values = bag.values;
    other.bag.failing = {failing};
    other.create();
    const std::string name = failing;
    EXPECT_EQ(other.control.OnLine(), name == "OnLine" ? "" : "Off") << name;
    EXPECT_EQ(other.control.DebugLevel(), name == "DebugLevel" ? "" : "4") << name;
    EXPECT_EQ(other.form.PartnerName, name == "PartnerName" ? "" : "X") << name;
    EXPECT_EQ(other.session.BuyerILN, name == "PartnerILN" ? "" : "222") << name;
    EXPECT_EQ(other.form.PartnerURL, name == "PartnerURL" ? "" : "p") << name;
    EXPECT_THAT(other.boxes(), IsEmpty()) << name;
  }
}

TEST_F(Properties, TheDisplayFollowsEvenWhenOnLineCouldNotBeRead) {
  form.OnLine = "Off";
  bag.failing = {"OnLine"};
  control.UserControl_ReadProperties();
  EXPECT_EQ(form.lblOnLineStatus.caption(), "Off-Line");
}

TEST_F(Properties, SettingOnLineShowsAtOnceAndReportsTheChange) {
  create();
  control.setOnLine("Off");
  EXPECT_EQ(control.OnLine(), "Off");
  EXPECT_EQ(form.lblOnLineStatus.caption(), "Off-Line");
  EXPECT_FALSE(form.btnPrzeslij.visible());
  control.setOnLine("whatever");
  EXPECT_EQ(control.OnLine(), "whatever");
  EXPECT_EQ(form.lblOnLineStatus.caption(), "On-Line");
  EXPECT_TRUE(form.btnPrzeslij.visible());
  EXPECT_THAT(host.changedProperties, ElementsAre("OnLine", "OnLine"));
}

TEST_F(Properties, SettingOnLineReportsTheNewValueBeforeItShows) {
  create();
  std::vector<std::string> seen;
  host.onPropertyChanged = [&] {
    seen = {control.OnLine(), form.lblOnLineStatus.caption(),
            form.btnPrzeslij.visible() ? "button" : "no button"};
  };
  control.setOnLine("Off");
  EXPECT_THAT(seen, ElementsAre("Off", "On-Line", "button"));
}

TEST_F(Properties, SettingDebugLevelReportsTheNewValue) {
  create();
  std::string seen;
  host.onPropertyChanged = [&] { seen = control.DebugLevel(); };
  control.setDebugLevel("2");
  EXPECT_EQ(seen, "2");
}

TEST_F(Properties, SettingDebugLevelReportsTheChange) {
  create();
  control.setDebugLevel("2");
  EXPECT_EQ(control.DebugLevel(), "2");
  EXPECT_THAT(host.changedProperties, ElementsAre("DebugLevel"));
}

TEST_F(Properties, ADebugLevelThatIsNoSmallNumberReadsAsNothing) {
  for (const char* value : {"", "abc", "32768", "-32769", "1.5x", "4 5x"}) {
    control.setDebugLevel(value);
    EXPECT_EQ(control.DebugLevel(), "") << value;
    EXPECT_EQ(form.DebugLevel, value);
  }
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Properties, ADebugLevelReadsAsItWasStored) {
  for (const char* value : {"0", "4", " 4", "-1", "32767", "2,5"}) {
    control.setDebugLevel(value);
    EXPECT_EQ(control.DebugLevel(), value);
  }
}

TEST_F(Properties, OnlyOnLineAndDebugLevelAreWrittenBack) {
  bag.values = {{"OnLine", "Off"}, {"DebugLevel", "4"}, {"PartnerName", "X"}};
  create();
  control.setOnLine("On");
  control.setDebugLevel("bad");
  control.UserControl_WriteProperties();
  EXPECT_THAT(bag.writtenNames, ElementsAre("OnLine", "DebugLevel"));
  EXPECT_EQ(bag.values["OnLine"], "On");
  EXPECT_EQ(bag.values["DebugLevel"], "bad");
}

TEST_F(Properties, AFailedWriteIsSilentAndTheNextIsStillDone) {
  create();
  bag.failing = {"OnLine"};
  control.UserControl_WriteProperties();
  EXPECT_THAT(bag.writtenNames, ElementsAre("DebugLevel"));
  bag.failing = {"OnLine", "DebugLevel"};
  control.UserControl_WriteProperties();
  EXPECT_THAT(boxes(), IsEmpty());
}

using LastEvents = ControlShell;

TEST_F(LastEvents, PaintingRefreshesLinesAndTotalsAndChangesNoState) {
  create();
  std::vector<std::string> painted;
  form.grdPozycje.observers.add([&](const Change&) { painted.push_back("grdPozycje"); });
  form.grdOpakowania.observers.add([&](const Change&) { painted.push_back("grdOpakowania"); });
  form.grdSuma.observers.add([&](const Change&) { painted.push_back("grdSuma"); });
  control.UserControl_Paint();
  EXPECT_THAT(painted, ElementsAre("grdPozycje", "grdSuma"));
}

TEST_F(LastEvents, TerminationKeepsTheLocalFolder) {
  prepareFolder();
  bag.values["OnLine"] = "Off";
  files.put(partnerFile, partnerInfo("ООО Покупатель"));
  start();
  session.OffLinePathValue = "c:\\other\\VIRD";
  control.UserControl_Terminate();
  EXPECT_EQ(settings.values["VIRD\\VirdActiveX\\OffLinePath"], "c:\\other\\VIRD");
}

TEST_F(LastEvents, AFolderThatCantBeKeptIsToldInABox) {
  class BrokenSettings : public SettingsInMemory {
    void write(std::string_view, std::string_view, std::string_view, std::string_view) override {
      throw errors::diskFull();
    }
  };
  BrokenSettings broken;
  const Platform surroundings = platformWith({.settings = &broken});
  SessionState record(surroundings);
  AwizoWysylki other(surroundings, record);
  other.UserControl_Terminate();
  EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|Disk full"));
}

TEST_F(LastEvents, AnUnsavedDocumentIsLostWithoutAQuestion) {
  create();
  form.txtNrAwiza.setText("7");
  session.LineCount = 1;
  control.UserControl_Terminate();
  EXPECT_THAT(boxes(), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
