#include "control_on_desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QScrollArea>
#include <QVBoxLayout>

#include "hosts/desktop/faces/table_face.h"
#include "support/files/files.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

constexpr int patienceMilliseconds = 10000;

}  // namespace

ControlOnDesktop::ControlOnDesktop(std::string_view localeName)
    : TestSurroundings(localeName),
      desktopPlatform(platformWith({.screenFace = &desktop})),
      session(desktopPlatform),
      control(desktopPlatform, session) {
  settings.values["VIRD\\VirdActiveX\\OffLinePath"] = "c:\\VIRD";
  files.put("c:\\VIRD\\userinfo.xml", projectFile("demo/folder/userinfo.xml"));
  files.put("c:\\VIRD\\9520001000010_9520002000019_partner_INFO.xml",
            projectFile("demo/folder/9520001000010_9520002000019_partner_INFO.xml"));
  bag.values["PartnerILN"] = "9520002000019";
  bag.values["OnLine"] = "Off";

  mainFaces = new desktop::FormFace(form, mainWindow);
  auto* rows = new QVBoxLayout(&mainWindow);
  for (const Control* shown : form.controls()) {
    if (shown != &form.txtEdycja) rows->addWidget(mainFaces->widget(*shown));
  }
  auto& lines = static_cast<desktop::TableFace&>(face(form.grdPozycje));
  lines.view()->setMinimumHeight(300);
  lines.layOverCell(face(form.txtEdycja));
  mainWindow.resize(1100, 1500);
  mainFaces->showAll();
  desktop.setMainWindow(form, mainWindow);
  mainWindow.show();
  mainWindow.activateWindow();
  settle();

  QObject::connect(&patience_, &QTimer::timeout, [] {
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ADD_FAILURE() << "nobody answers " << (box == nullptr ? "a dialog" : seen(*box));
    QCoreApplication::exit(1);
  });
  patience_.start(patienceMilliseconds);
  control.UserControl_Initialize();
  control.UserControl_ReadProperties();
  control.UserControl_Show();
  settle();
}

ControlOnDesktop::~ControlOnDesktop() {
  desktop.releaseDialogs();
  delete mainFaces;
}

desktop::Face& ControlOnDesktop::face(const Control& shown) {
  if (&shown.form() == &form) return mainFaces->face(shown);
  return desktop.dialog(shown.form()).faces().face(shown);
}

void ControlOnDesktop::tabTo(const Control& wanted) {
  const std::size_t most = wanted.form().controls().size();
  for (std::size_t i = 0; i < most && wanted.form().focus() != &wanted; ++i) press(Qt::Key_Tab);
  EXPECT_EQ(wanted.form().focus(), &wanted) << "Tab doesn't lead to " << wanted.name();
}

testing::AssertionResult ControlOnDesktop::keysGoTo(const Control& shown) {
  const QWidget* there = keyTarget();
  if (there == face(shown).focusWidget()) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << "they go to " << (there == nullptr ? "none" : desktop::toText(there->objectName()));
}

void ControlOnDesktop::loadCatalogues() {
  ASSERT_TRUE(session.ProductCatalogDom->loadText(projectFile("demo/data/catalogue.xml")));
  session.ProductCatalogLoaded = true;
  std::string places = projectFile("demo/data/delivery-places.xml");
  places.erase(0, places.find("<Document-LocalizationsCatalog>"));
  ASSERT_TRUE(session.LocalizationsDom->loadText("<dictionary-response><document-content>" +
                                                 places +
                                                 "</document-content></dictionary-response>"));
  session.LocalizationsLoaded = true;
}

void ControlOnDesktop::fillDocument() {
  TestEditor::fill(form.grdPozycje,
                   {{"1", "9520001010026", "Молоко пастеризованное 3,2 %, 0,9 л", "5,000", "5,000"},
                    {"2", "4600000000024", "Кефир 1 % 0,5 л", "12,000", "10,000"}});
  session.LineCount = 2;
  for (int row = 1; row <= 2; ++row) {
    form.grdPozycje.setCell(row, GRD_POZ_PRODUCTION_DATE, "2026-11-20");
    form.grdPozycje.setCell(row, GRD_POZ_PACKED_QTY, "0,000");
  }
  TestEditor::fill(form.grdOpakowania, {{"1", "", "1", "Паллета 1", "1"},
                                        {"2", "", "2", "Паллета 2", "1"},
                                        {"3", "Паллета 1", "3", "Коробка", "2"}});
  for (int row = 1; row <= 3; ++row) {
    form.grdOpakowania.setCell(row, GRD_OPAK_SERIAL, std::to_string(row + 1));
    form.grdOpakowania.setCell(row, GRD_OPAK_PARENT_SERIAL, row == 3 ? "2" : "1");
  }
  session.IloscPozycjiOpak = 3;
  form.LastPackageSerial = 4;
  settle();
}

}  // namespace awizo::test
