// A chain of changes that breaks off reports the event in which it did, and that event's mark stays
// until the event of the same mark next runs to its end.

#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* refused =
    "|critical|OK|Could not set the Value property. Invalid property value.";

struct BrokenChain : ::testing::Test {
  BrokenChain() { test.loadProducts({{"4601", "Чай", "s1", "b1"}, {"4602", "Кофе", "s2", "b2"}}); }

  /// From now on the list takes no text, so that whoever sets one fails.
  static void refuseTexts(DropDownList& list) {
    list.setStyle(ListStyle::listOnly);
    list.setRows({});
  }
  static void takeTexts(DropDownList& list) { list.setStyle(ListStyle::freeTyping); }

  LineDialog test;
  DlgDodaj& dialog = test.dialog;
};

TEST_F(BrokenChain, FromTheBuyersCode) {
  test.show([&] {
    refuseTexts(dialog.cboxNazwaProd);
    dialog.cboxKodAPP.userChoose(0);
    EXPECT_THAT(test.takeBoxes(),
                ElementsAre(std::string("VIRDПроизошла ошибка в  cboxKodAPP_Change") + refused));
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 2);
    EXPECT_EQ(dialog.txtKodKup.text(), "b1");
    takeTexts(dialog.cboxNazwaProd);
    dialog.cboxKodAPP.userChoose(1);
    EXPECT_THAT(test.takeBoxes(), IsEmpty());
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 0);
  });
}

TEST_F(BrokenChain, FromTheSuppliersCode) {
  test.show([&] {
    refuseTexts(dialog.cboxNazwaProd);
    dialog.cboxKodSprzed.userChoose(0);
    EXPECT_THAT(test.takeBoxes(),
                ElementsAre(std::string("VIRDПроизошла ошибка в  cboxKodSprzed_Change") + refused));
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 4);
    EXPECT_EQ(dialog.txtKodSprzed.text(), "s1");
  });
}

TEST_F(BrokenChain, FromTheName) {
  test.show([&] {
    refuseTexts(dialog.cboxEANProd);
    dialog.cboxNazwaProd.userChoose(0);
    EXPECT_THAT(test.takeBoxes(),
                ElementsAre(std::string("VIRDПроизошла ошибка в  cboxNazwaProd_Change") + refused));
    EXPECT_EQ(dialog.productChoice().ProductChangeSource, 3);
    EXPECT_EQ(dialog.txtNazwaProdWart.text(), "Кофе");
  });
}

}  // namespace
}  // namespace awizo::test
