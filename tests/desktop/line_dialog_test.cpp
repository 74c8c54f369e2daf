#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>

#include "control_on_desktop.h"
#include "hosts/desktop/faces/table_face.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

constexpr auto cyrillicD = static_cast<Qt::Key>(0x414);

class LineDialogOnDesktop : public testing::Test, public ControlOnDesktop {
 protected:
  DlgDodaj& line = control.dlgDodaj;

  /// Presses the main form's button for a new line and acts in the dialog.
  void addLine(const std::function<void()>& act) {
    then(act);
    click(face(form.btnDodaj));
    settle();
  }
  void editLine(int row, const std::function<void()>& act) {
    form.grdPozycje.setRow(row);
    then(act);
    click(face(form.btnEdytuj));
    settle();
  }
  QWidget* edit(const DropDownList& list) {
    return qobject_cast<QComboBox*>(widget(list))->lineEdit();
  }
  void pickProposal(const DropDownList& list, const QString& typed) {
    click(edit(list));
    press(Qt::Key_A, Qt::ControlModifier);
    type(typed);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
  }
  std::vector<std::string> packageRow(int row) {
    std::vector<std::string> texts;
    for (int column = 2; column < 5; ++column) texts.push_back(line.grdPozycje.cell(row, column));
    return texts;
  }
};

TEST_F(LineDialogOnDesktop, OpensOnTheNameWithTheListsOverTheTextFields) {
  loadCatalogues();
  addLine([this] {
    EXPECT_EQ(desktop::toText(dialog(line).windowTitle()), "Добавь продукт");
    EXPECT_EQ(shownText(face(line.lblPozycjaTow)), "Позиция номер 1");
    EXPECT_TRUE(keysGoTo(line.cboxNazwaProd));
    EXPECT_TRUE(widget(line.cboxNazwaProd)->isVisible());
    EXPECT_FALSE(widget(line.txtNazwaProdWart)->isVisible());
    EXPECT_FALSE(widget(line.txtCenaNetto)->isVisible());
    EXPECT_FALSE(widget(line.lblCenaNetto)->isVisible());
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, WithoutACatalogueTheTextFieldsAreSeen) {
  addLine([this] {
    EXPECT_TRUE(widget(line.txtNazwaProdWart)->isVisible());
    EXPECT_FALSE(widget(line.cboxNazwaProd)->isVisible());
    EXPECT_TRUE(keysGoTo(line.txtNazwaProdWart));
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, TabVisitsEachFieldThatIsSeenOnce) {
  loadCatalogues();
  addLine([this] {
    std::vector<std::string> visited;
    for (int i = 0; i < 25; ++i) {
      visited.push_back(line.focus()->name());
      EXPECT_TRUE(keysGoTo(*line.focus()));
      press(Qt::Key_Tab);
      if (line.focus() == &line.cboxNazwaProd) break;
    }
    EXPECT_THAT(visited,
                ElementsAre("cboxNazwaProd", "cboxEANProd", "cboxKodAPP", "cboxKodSprzed",
                            "cboxJednostkaMiary", "txtIloscZam", "txtIloscPotw", "cboxKodVAT",
                            "dtProdDate", "dtExpiryDate", "comboCountry", "txtCDN1", "dpCDN2",
                            "txtCDN3", "txtCDN4", "grdPozycje", "btnDodaj", "btnZamknij"));
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, ALineIsEnteredByTheKeyboardAlone) {
  loadCatalogues();
  addLine([this] {
    type("кефир");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(line.txtlEANProdWart.text().empty());
    EXPECT_EQ(shownText(face(line.cboxEANProd)), line.txtlEANProdWart.text());
    EXPECT_EQ(shownText(face(line.cboxKodAPP)), line.txtKodKup.text());
    EXPECT_EQ(shownText(face(line.cboxKodSprzed)), line.txtKodSprzed.text());
    tabTo(line.txtIloscPotw);
    type("12");
    press(Qt::Key_Return);
  });
  EXPECT_EQ(line.DlgResult, 1);
  EXPECT_EQ(session.LineCount, 1);
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_QTY_DESPATCHED), "12,000");
  EXPECT_EQ(form.grdPozycje.cell(1, GRD_POZ_NAME), line.txtNazwaProdWart.text());
}

TEST_F(LineDialogOnDesktop, TypingAnUnknownProductChangesItsOwnFieldAlone) {
  loadCatalogues();
  addLine([this] {
    pickProposal(line.cboxNazwaProd, "кефир");
    const std::string ean = line.txtlEANProdWart.text();
    click(edit(line.cboxNazwaProd));
    press(Qt::Key_A, Qt::ControlModifier);
    type("нет такого");
    EXPECT_EQ(line.txtNazwaProdWart.text(), "нет такого");
    EXPECT_EQ(line.cboxNazwaProd.index(), -1);
    EXPECT_EQ(line.txtlEANProdWart.text(), ean);
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, ARefusedEANPutsTheFocusOnTheListThatLiesOverIt) {
  loadCatalogues();
  std::string box;
  addLine([&] {
    answerNext("ОК", &box);
    press(cyrillicD, Qt::AltModifier);
    EXPECT_TRUE(dialog(line).isVisible());
    EXPECT_EQ(line.focus(), &line.txtlEANProdWart);
    EXPECT_TRUE(keysGoTo(line.cboxEANProd));
    type("123");
    EXPECT_EQ(line.txtlEANProdWart.text(), "123");
    press(Qt::Key_Escape);  // the proposals
    press(Qt::Key_Escape);
  });
  EXPECT_EQ(box,
            "critical|VIRD|Стоимость для поля 'Штрих-код товара' есть ошибочная или отсутсвует|ОК");
}

TEST_F(LineDialogOnDesktop, ARefusedQuantityPutsTheFocusThere) {
  addLine([this] {
    typeOver(face(line.txtlEANProdWart), "123");
    answerNext("ОК");
    press(Qt::Key_Return);
    EXPECT_TRUE(keysGoTo(line.txtIloscPotw));
    EXPECT_EQ(line.focus(), &line.txtIloscPotw);
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, AQuantityIsPutIntoFormAsItsFieldIsLeft) {
  addLine([this] {
    typeOver(face(line.txtIloscZam), "7");
    press(Qt::Key_Tab);
    EXPECT_EQ(shownText(face(line.txtIloscZam)), "7,000");
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, EscapeAndTheFrameCloseWithoutAcceptingAndWithoutValidating) {
  for (const bool byFrame : {false, true}) {
    line.DlgResult = 1;
    addLine([&] {
      typeOver(face(line.txtIloscZam), "abc");
      if (byFrame) {
        dialog(line).close();
      } else {
        press(Qt::Key_Escape);
      }
      EXPECT_FALSE(dialog(line).isVisible());
    });
    EXPECT_EQ(line.DlgResult, 0);
    EXPECT_EQ(line.txtIloscZam.text(), "abc");
  }
}

TEST_F(LineDialogOnDesktop, AnExistingLinesOrderedQuantityCantBeTyped) {
  loadCatalogues();
  fillDocument();
  editLine(1, [this] {
    EXPECT_EQ(shownText(face(line.btnDodaj)), "&Подтвердить");
    EXPECT_FALSE(widget(line.txtIloscZam)->isEnabled());
    EXPECT_EQ(shownText(face(line.txtIloscZam)), "5,000");
    click(face(line.txtIloscZam));
    EXPECT_FALSE(keysGoTo(line.txtIloscZam));
    press(Qt::Key_Escape);
  });
  EXPECT_TRUE(line.txtIloscZam.enabled());
}

TEST_F(LineDialogOnDesktop, APackageIsAssignedChangedAndTakenOut) {
  loadCatalogues();
  fillDocument();
  editLine(1, [this] {
    then([this] {
      EXPECT_EQ(desktop::toText(QApplication::activeModalWidget()->windowTitle()),
                "Добавь товар в упаковку");
      typeOver(face(control.dlgdodajPule.txtQuantity), "3");
      press(Qt::Key_Return);
    });
    click(face(line.Command1));
    EXPECT_THAT(packageRow(1), ElementsAre("Паллета 1", "1", "3,000"));
    EXPECT_EQ(shownText(face(line.lblPackedQuantityValue)), "3,000");
    EXPECT_TRUE(keysGoTo(line.grdPozycje));
    then([this] {
      DlgdodajPule& quantity = control.dlgdodajPule;
      EXPECT_EQ(shownText(face(quantity.btnDodaj)), "&Подтвердить");
      click(face(quantity.cboxPackages));
      press(Qt::Key_Down);
      press(Qt::Key_Return);
      EXPECT_EQ(quantity.cboxPackages.index(), 1);
      press(cyrillicD, Qt::AltModifier);  // the mnemonic is another letter now
      EXPECT_TRUE(quantity.shown());
      press(static_cast<Qt::Key>(0x41F), Qt::AltModifier);  // П
    });
    click(face(line.Command3));
    EXPECT_THAT(packageRow(1), ElementsAre("Паллета 2", "1", "3,000"));
    click(face(line.Command2));
    EXPECT_THAT(packageRow(1), ElementsAre("", "", ""));
    EXPECT_FALSE(widget(line.Command2)->isEnabled());
    EXPECT_TRUE(keysGoTo(line.grdPozycje));
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, AWrongQuantityBecomesTheLargestAsItIsTyped) {
  loadCatalogues();
  fillDocument();
  editLine(1, [this] {
    then([this] {
      DlgdodajPule& quantity = control.dlgdodajPule;
      std::string box;
      click(face(quantity.txtQuantity));
      press(Qt::Key_A, Qt::ControlModifier);
      answerNext("ОК", &box);
      type("x");
      EXPECT_EQ(box, "critical|VIRD|Значение должно быть числовым|ОК");
      EXPECT_EQ(shownText(face(quantity.txtQuantity)), "5");
      EXPECT_TRUE(keysGoTo(quantity.txtQuantity));
      click(widget(quantity.UpDown1)->findChild<QWidget*>("down"));
      EXPECT_EQ(shownText(face(quantity.txtQuantity)), "4");
      press(Qt::Key_Escape);
    });
    click(face(line.Command1));
    EXPECT_EQ(control.dlgdodajPule.DlgResult, 0);
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, ACountryIsPickedFromTheListOfAll) {
  QApplication::setDoubleClickInterval(1);
  addLine([this] {
    bool picked = false;
    DlgIsoCodes& countries = control.dlgIsoCodes;
    countries.onActivate = [&] {
      then([&] {
        QTableView* view = static_cast<desktop::TableFace&>(face(countries.grdISO)).view();
        EXPECT_TRUE(keysGoTo(countries.grdISO));
        click(view->viewport(), view->visualRect(view->model()->index(2, 0)).center());
        EXPECT_TRUE(view->selectionModel()->isRowSelected(2)) << "a whole row is marked";
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        picked = true;
      });
    };
    click(face(line.btnISOcodes));
    EXPECT_TRUE(QTest::qWaitFor([&] { return picked && !countries.shown(); }));
    EXPECT_EQ(line.comboCountry.text(), "(AL)Албания");
    EXPECT_EQ(shownText(face(line.comboCountry)), "(AL)Албания");
    countries.onActivate = nullptr;
    press(Qt::Key_Escape);
  });
  QApplication::setDoubleClickInterval(400);
}

TEST_F(LineDialogOnDesktop, ACountryIsFoundByTypingAndTakenByADoubleClick) {
  DlgIsoCodes& countries = control.dlgIsoCodes.touch();
  then([&] {
    QTableView* view = static_cast<desktop::TableFace&>(face(countries.grdISO)).view();
    press(Qt::Key_End);
    EXPECT_EQ(countries.grdISO.row(), 236);
    press(Qt::Key_Home);
    EXPECT_EQ(countries.grdISO.row(), 1);
    type("рос");
    const int found = countries.grdISO.row();
    EXPECT_EQ(countries.grdISO.cell(found, 0), "Россия");
    const QRect cell = view->visualRect(view->model()->index(found - 1, 0));
    EXPECT_TRUE(view->viewport()->rect().contains(cell));
    doubleClick(view->viewport(), cell.center());
  });
  countries.showModal();
  EXPECT_EQ(session.IsoResult, "(RU)Россия");
}

TEST_F(LineDialogOnDesktop, InsF2AndDelActOnThePackagesOfTheLine) {
  addLine([this] {
    std::string pressed;
    for (Button* button : {&line.Command1, &line.Command2, &line.Command3}) {
      button->onClick = [&pressed, button] { pressed += button->name() + " "; };
    }
    tabTo(line.grdPozycje);
    press(Qt::Key_Insert);
    EXPECT_EQ(pressed, "") << "a disabled button has no key";
    for (Button* button : {&line.Command1, &line.Command2, &line.Command3}) {
      button->setEnabled(true);
    }
    press(Qt::Key_Insert);
    press(Qt::Key_Delete);
    press(Qt::Key_F2);
    EXPECT_EQ(pressed, "Command1 Command2 Command3 ");
    EXPECT_EQ(face(line.Command1).widget()->toolTip(), "Положить товар в упаковку (Ins)");
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, ADraggedMarkOfCountriesFallsBackToOneRow) {
  DlgIsoCodes& countries = control.dlgIsoCodes.touch();
  then([&] {
    QTableView* view = static_cast<desktop::TableFace&>(face(countries.grdISO)).view();
    const auto at = [&](int row) {
      return view->visualRect(view->model()->index(row, 0)).center();
    };
    QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, at(2));
    QTest::mouseMove(view->viewport(), at(6));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, at(6));
    EXPECT_EQ(countries.grdISO.row(), 3);
    EXPECT_EQ(countries.grdISO.rowSel(), 3);
    EXPECT_EQ(view->selectionModel()->selectedRows().size(), 1);
    EXPECT_FALSE(countries.MouseHeld);
    press(Qt::Key_Escape);
  });
  countries.showModal();
}

TEST_F(LineDialogOnDesktop, ADateTypedInTheProductionDateMovesTheExpiryDate) {
  loadCatalogues();
  addLine([this] {
    line.LinePeriod = "10";
    line.LinePeriodFormat = "804";  // days
    line.dtExpiryDate.setDate(std::nullopt);
    tabTo(line.dtProdDate);
    press(Qt::Key_Up);
    EXPECT_EQ(line.dtProdDate.date(), makeDate(2026, 11, 22));
    EXPECT_EQ(line.MyCalculateExpiryDate(), "2026-12-02");
    EXPECT_EQ(shownText(face(line.dtExpiryDate)), "2 декабря 2026 г.");
    press(Qt::Key_Escape);
  });
}

TEST_F(LineDialogOnDesktop, KeysBringTheFieldWithTheFocusIntoSight) {
  addLine([&] {
    QWidget& window = dialog(line);
    window.resize(window.width(), 200);
    settle();
    const auto isInSight = [](const QWidget* field) {
      return field->visibleRegion().boundingRect() == field->rect();
    };
    EXPECT_FALSE(isInSight(widget(line.btnZamknij)));
    tabTo(line.btnZamknij);
    EXPECT_TRUE(isInSight(widget(line.btnZamknij)));
    tabTo(line.txtIloscPotw);
    EXPECT_TRUE(isInSight(widget(line.txtIloscPotw)));
    line.userClose();
  });
}

}  // namespace
}  // namespace awizo::test
