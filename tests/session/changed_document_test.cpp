// Which documents would be lost, so that a host asks before it lets one go.

#include <gtest/gtest.h>

#include "on_line_start_fixture.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

class ChangedDocument : public OnLineStart {
 protected:
  void startOffLine() {
    bag.values["OnLine"] = "Off";
    files.put(partnerFile, partnerInfo("ООО Покупатель"));
    start();
  }
  void startWithOrder() { startWith("<none/>", "<none/>", orderReply(orderLine("1", "2"))); }
  bool changed() const { return control.isDocumentChanged(); }
};

TEST_F(ChangedDocument, IsNoneBeforeTheStart) {
  create();
  form.txtNrAwiza.setText("1");
  EXPECT_FALSE(changed());
}

TEST_F(ChangedDocument, IsOneThatTheUserChangedAndDidNotChangeBack) {
  startOffLine();
  EXPECT_FALSE(changed());
  form.txtNrAwiza.userType("1");
  EXPECT_TRUE(changed());
  form.txtNrAwiza.userType("");
  EXPECT_FALSE(changed());
}

TEST_F(ChangedDocument, IsNoneForWhichCellIsCurrent) {
  startWithOrder();
  form.deeds.tell({Deed::Kind::sent});
  form.grdPozycje.userCell(1, GRD_POZ_NAME);
  form.grdPozycje.setColumnWidth(GRD_POZ_NAME, 300);
  EXPECT_FALSE(changed());
}

TEST_F(ChangedDocument, IsAnOrderThatWasHandedOutForGood) {
  startWithOrder();
  EXPECT_TRUE(changed());
  form.deeds.tell({Deed::Kind::sent});
  EXPECT_FALSE(changed());
  form.grdPozycje.setCell(1, GRD_POZ_QTY_DESPATCHED, "3");
  EXPECT_TRUE(changed());
}

TEST_F(ChangedDocument, IsOneWithAnotherTextInTheOpenEditor) {
  startWithOrder();
  form.deeds.tell({Deed::Kind::sent});
  form.grdPozycje.userCell(1, GRD_POZ_QTY_DESPATCHED);
  form.txtEdycja.setVisible(true);
  form.txtEdycja.setText(form.grdPozycje.text());
  EXPECT_FALSE(changed());
  form.txtEdycja.setText("7");
  EXPECT_TRUE(changed());
}

TEST_F(ChangedDocument, IsNoneAfterAStartThatFailed) {
  settings.values.clear();
  start();
  ASSERT_FALSE(control.Enabled());
  form.txtNrAwiza.setText("1");
  EXPECT_FALSE(changed());
}

}  // namespace
}  // namespace awizo::test
