#include <QAccessible>
#include <QLineEdit>

#include "desk/fault_list.h"
#include "desk/find_dialog.h"
#include "desktop_program/program_test.h"
#include "hosts/desktop/layouts/make_dialog.h"

namespace awizo::test {
namespace {

/// What a screen reader hears of the forms, through Qt's accessibility interface.
class AccessibilityTest : public ProgramTest {
 protected:
  static std::string nameOf(QWidget* widget) {
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(widget);
    if (heard == nullptr) return "";
    // A list says its value where others say their name; its name is that of its label.
    if (heard->role() != QAccessible::ComboBox) {
      return desktop::toText(heard->text(QAccessible::Name));
    }
    const auto labels = heard->relations(QAccessible::Label);
    return labels.empty() ? "" : desktop::toText(labels.front().first->text(QAccessible::Name));
  }

  /// Whether the user acts on the control, so that it must say what it is.
  static bool isActedOn(const Control& control) {
    return control.isFocusable() || control.kind() == ControlKind::pictureButton;
  }

  static void expectNames(const Form& form, const desktop::FormFace& faces) {
    int heard = 0;
    for (const Control* control : form.controls()) {
      if (!isActedOn(*control)) continue;
      ++heard;
      const std::string name = nameOf(faces.face(*control).focusWidget());
      EXPECT_NE(name, "") << form.name() << "." << control->name();
    }
    EXPECT_GT(heard, 0) << form.name();
  }
};

TEST_F(AccessibilityTest, NoControlOfTheMainFormIsNameless) {
  open(offLineOptions());
  expectNames(form(), widget().faces());
}

TEST_F(AccessibilityTest, NoControlOfADialogIsNameless) {
  open(offLineOptions());
  Screen& screen = control().screen;
  FaultList faults(screen);
  FindDialog find(screen, control().editor);
  AwizoWysylki& all = control();
  for (Form* dialog :
       std::initializer_list<Form*>{&all.dlgDodaj, &all.dlgdodajPule, &all.dlgIsoCodes,
                                    &all.dlgSzczegoly, &all.dlgWczytajZapisz, &faults, &find}) {
    const std::unique_ptr<desktop::FormDialog> shown(desktop::makeDialog(*dialog, nullptr));
    expectNames(*dialog, shown->faces());
  }
}

TEST_F(AccessibilityTest, AListSaysItsLabelAndNotItsValue) {
  open(offLineOptions());
  form().comboCountry.userType("(RU)Россия");
  EXPECT_EQ(nameOf(face(form().comboCountry).widget()), "Страна:");
  const auto* typed = face(form().comboCountry).widget()->findChild<QLineEdit*>();
  EXPECT_EQ(typed->accessibleName(), "Страна:");
  EXPECT_EQ(nameOf(face(form().cboxPackageDescription).widget()), "Количество в упаковке:");
}

TEST_F(AccessibilityTest, TheFieldsOfACustomsNumberSayWhichTheyAre) {
  open(offLineOptions());
  DlgDodaj& dialog = control().dlgDodaj;
  const std::unique_ptr<desktop::FormDialog> shown(desktop::makeDialog(dialog, nullptr));
  const auto name = [&](const Control& field) {
    return nameOf(shown->faces().face(field).focusWidget());
  };
  EXPECT_EQ(name(dialog.txtCDN1), "Номер ГТД, первые 8 цифр");
  EXPECT_EQ(name(dialog.dpCDN2), "Номер ГТД, дата");
  EXPECT_EQ(name(dialog.txtCDN3), "Номер ГТД, последние 7 цифр");
  EXPECT_EQ(name(dialog.txtCDN4), "Номер ГТД, номер товара");
}

}  // namespace
}  // namespace awizo::test
