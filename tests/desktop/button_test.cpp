#include "platform/forms/button.h"

#include <QAbstractButton>

#include "form_window.h"
#include "hosts/desktop/faces/button_face.h"
#include "hosts/desktop/faces/icons.h"
#include "platform/forms/label.h"
#include "platform/forms/spin_buttons.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ButtonsOnDesktop : public FormWindow {
 protected:
  TextField number{form, "number"};
  SpinButtons spin{form, "spin", number};
  Button plain{form, "plain", "&Добавить"};
  PictureButton picture{form, "picture", "ISO коды стран."};
  PictureButton doubled{form, "doubled", "Двойной"};
  Label label{form, "label", "а & б <b>"};
  Frame frame{form, "frame", "        Заголовок"};

  ButtonsOnDesktop() {
    plain.onClick = note("plain.Click");
    picture.onClick = note("picture.Click");
    doubled.onClick = note("doubled.Click");
    doubled.onDoubleClick = note("doubled.DblClick");
    doubled.doubleClickAlone = true;
    number.setText("5");
    number.onChange = [this] { events.push_back(number.text()); };
    spin.setMin(1);
    spin.setMax(6);
    show();
  }
  QAbstractButton* button(const Control& control) {
    return qobject_cast<QAbstractButton*>(widgetOf(control));
  }
};

TEST_F(ButtonsOnDesktop, AClickReachesTheModelOnce) {
  click(faceOf(plain));
  click(faceOf(picture));
  EXPECT_THAT(events, ElementsAre("plain.Click", "picture.Click"));
}

TEST_F(ButtonsOnDesktop, ADisabledButtonTakesNoClick) {
  plain.setEnabled(false);
  click(faceOf(plain));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ButtonsOnDesktop, ShowItsCaptionAsCodeChangesIt) {
  EXPECT_EQ(shownText(faceOf(plain)), "&Добавить");
  plain.setCaption("&Подтвердить");
  EXPECT_EQ(shownText(faceOf(plain)), "&Подтвердить");
  EXPECT_EQ(desktop::toText(button(plain)->accessibleName()), "Подтвердить");
}

TEST_F(ButtonsOnDesktop, APictureButtonsCaptionIsItsTip) {
  EXPECT_EQ(desktop::toText(button(picture)->toolTip()), "ISO коды стран.");
  static_cast<desktop::ButtonFace&>(faceOf(picture)).setIcon("countries");
  EXPECT_FALSE(button(picture)->icon().isNull());
  EXPECT_EQ(shownText(faceOf(picture)), "");
  EXPECT_EQ(desktop::toText(button(picture)->toolTip()), "ISO коды стран.");
}

TEST_F(ButtonsOnDesktop, PicturesAreDrawnInBothSchemes) {
  for (const char* name : {"countries", "open", "save", "close"}) {
    const QImage drawn = desktop::iconNamed(name).pixmap(24, 24).toImage();
    int inked = 0;
    for (int y = 0; y < drawn.height(); ++y) {
      for (int x = 0; x < drawn.width(); ++x) inked += qAlpha(drawn.pixel(x, y)) > 128 ? 1 : 0;
    }
    EXPECT_GT(inked, 20) << name;
  }
  EXPECT_TRUE(desktop::iconNamed("no such picture").isNull());
}

TEST_F(ButtonsOnDesktop, ADoubleClickOfItsOwnRaisesNoClick) {
  doubleClick(button(doubled), button(doubled)->rect().center());
  EXPECT_THAT(events, ElementsAre("doubled.DblClick"));
  QApplication::setDoubleClickInterval(1);
  click(faceOf(doubled));
  EXPECT_TRUE(QTest::qWaitFor([this] { return events.size() > 1; }));
  QApplication::setDoubleClickInterval(400);
  EXPECT_THAT(events, ElementsAre("doubled.DblClick", "doubled.Click"))
      << "the first click of the double click never comes";
}

TEST_F(ButtonsOnDesktop, AClickThatStaysAloneComesOnceItCanBeNoDoubleClick) {
  QApplication::setDoubleClickInterval(1);
  click(faceOf(doubled));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !events.empty(); }));
  QApplication::setDoubleClickInterval(400);
  EXPECT_THAT(events, ElementsAre("doubled.Click"));
}

TEST_F(ButtonsOnDesktop, SpinArrowsMoveTheFieldWithinItsLimits) {
  auto* up = widgetOf(spin)->findChild<QAbstractButton*>("up");
  auto* down = widgetOf(spin)->findChild<QAbstractButton*>("down");
  click(up);
  click(up);
  EXPECT_EQ(shownText(faceOf(number)), "6");
  click(down);
  EXPECT_THAT(events, ElementsAre("6", "5"));
  EXPECT_TRUE(focusIsAt(number));
}

TEST_F(ButtonsOnDesktop, LabelsShowPlainText) {
  EXPECT_EQ(shownText(faceOf(label)), "а & б <b>");
  label.setCaption("1,000");
  EXPECT_EQ(shownText(faceOf(label)), "1,000");
}

TEST_F(ButtonsOnDesktop, AFrameShowsItsHeadingWithoutBlanks) {
  EXPECT_EQ(shownText(faceOf(frame)), "Заголовок");
}

}  // namespace
}  // namespace awizo::test
