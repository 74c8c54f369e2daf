#include "session/record/header_fields.h"

#include <algorithm>

#include "support/test_editor.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct HeaderFieldsTest : testing::Test {
  std::vector<std::string> values() {
    std::vector<std::string> texts;
    for (const HeaderField& field : headerFields(form)) texts.push_back(valueText(field));
    return texts;
  }

  TestEditor test;
  AwizoForm& form = test.form;
};

/// What the user fills on the main form, but not in the header.
bool isOfTheTables(const AwizoForm& form, const Control* control) {
  const std::vector<const Control*> others{
      &form.txtEdycja, &form.txtEdycjaSuma,      // lie over a cell, which has the value
      &form.comboStawkaVAT, &form.comboCountry,  // are written over all lines on demand
  };
  return std::find(others.begin(), others.end(), control) != others.end();
}

bool canBeFilled(const Control* control) {
  switch (control->kind()) {
    case ControlKind::textField:
    case ControlKind::dropDownList:
    case ControlKind::datePicker:
    case ControlKind::timePicker:
      return true;
    default:
      return false;
  }
}

TEST_F(HeaderFieldsTest, AreAllThatTheUserCanFillButWhatServesTheTables) {
  std::vector<const Control*> listed;
  for (const HeaderField& field : headerFields(form)) {
    std::visit([&](const Control* control) { listed.push_back(control); }, field.control);
  }
  std::vector<std::string> forgotten;
  for (const Control* control : form.controls()) {
    if (!canBeFilled(control) || isOfTheTables(form, control)) continue;
    const auto found = std::find(listed.begin(), listed.end(), control);
    if (found == listed.end()) {
      forgotten.push_back(control->name());
    } else {
      listed.erase(found);
    }
  }
  EXPECT_THAT(forgotten, IsEmpty());
  EXPECT_THAT(listed, IsEmpty()) << "listed twice, or no field";
}

TEST_F(HeaderFieldsTest, HaveTheirValuesAsText) {
  form.cboxPackageDescription.addRow("Короб");
  form.txtNrAwiza.setText("WZ-1");
  form.txtNrZam.setText("ЗК-2");
  form.txtCodeByBuyer.setText("77");
  form.txtDataAwiza.setDate(makeDate(2026, 11, 2));
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  form.txtDespatchAdviceTime.setTime(TimeOfDay{9, 5, 30});
  form.txtEstimatedDeliveryTime.setTime(std::nullopt);
  form.dpDataZam.setDate(makeDate(2026, 1, 31));
  form.cboxPackageDescription.setIndex(0);
  form.txtGoodsIdentity.setText("3");
  EXPECT_THAT(values(), ElementsAre("WZ-1", "ЗК-2", "77", "2026-11-02", "", "09:05", "",
                                    "2026-01-31", "Короб", "3"));
}

TEST_F(HeaderFieldsTest, EmptiedHaveNothingButTodayAndTheKindOfPackage) {
  form.cboxPackageDescription.addRow("Короб");
  form.cboxPackageDescription.setIndex(0);
  for (TextField* field :
       {&form.txtNrAwiza, &form.txtNrZam, &form.txtCodeByBuyer, &form.txtGoodsIdentity}) {
    field->setText("x");
  }
  form.dpDataZam.setDate(makeDate(2026, 1, 31));
  for (const HeaderField& field : headerFields(form)) emptyField(field, makeDate(2026, 12, 24));
  EXPECT_THAT(values(),
              ElementsAre("", "", "", "2026-12-24", "2026-12-24", "", "", "", "Короб", ""));
}

}  // namespace
}  // namespace awizo::test
