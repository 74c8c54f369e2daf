#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QWheelEvent>

#include "form_window.h"
#include "hosts/desktop/faces/proposals_model.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListOnDesktop : public FormWindow {
 protected:
  DropDownList free{form, "free"};
  DropDownList only{form, "only", "", ListStyle::listOnly};
  Button accept{form, "accept", "&Добавить"};

  ListOnDesktop() {
    for (DropDownList* list : {&free, &only}) {
      list->setRows({"Молоко", "Кефир", "Молоко топлёное", "Сыр"});
      list->onChange = [this, list] { events.push_back("Change " + list->text()); };
      list->onClick = [this, list] { events.push_back("Click " + std::to_string(list->index())); };
    }
    accept.onClick = note("accept.Click");
    form.acceptButton = &accept;
    show();
    takeEvents();
  }

  QComboBox* box(const DropDownList& list) { return qobject_cast<QComboBox*>(widgetOf(list)); }
  static QAbstractItemView* proposals() {
    return qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
  }
  static std::vector<std::string> proposed() {
    std::vector<std::string> texts;
    const QAbstractItemView* popup = proposals();
    for (int row = 0; popup != nullptr && row < popup->model()->rowCount(); ++row) {
      texts.push_back(desktop::toText(popup->model()->index(row, 0).data().toString()));
    }
    return texts;
  }
  /// Opens the list itself and clicks a row of it.
  void pick(const DropDownList& list, int row) {
    box(list)->showPopup();
    QAbstractItemView* view = box(list)->view();
    const QModelIndex wanted = view->model()->index(row, 0);
    view->scrollTo(wanted);
    view->setCurrentIndex(wanted);
    QTest::keyClick(view, Qt::Key_Return);
  }
};

TEST_F(ListOnDesktop, PickingARowChangesThenClicks) {
  pick(only, 1);
  EXPECT_THAT(events, ElementsAre("Change Кефир", "Click 1"));
  EXPECT_EQ(shownText(faceOf(only)), "Кефир");
  EXPECT_TRUE(focusIsAt(only));
}

TEST_F(ListOnDesktop, ArrowsPickTheNextRow) {
  click(faceOf(only));
  press(Qt::Key_Escape);  // closes the pop-up
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(only.index(), 1);
  EXPECT_EQ(events.back(), "Click 1");
}

TEST_F(ListOnDesktop, ShowsWhatCodePicks) {
  only.setIndex(2);
  EXPECT_EQ(shownText(faceOf(only)), "Молоко топлёное");
  only.setIndex(-1);
  EXPECT_EQ(shownText(faceOf(only)), "");
  free.setText("чего нет");
  EXPECT_EQ(shownText(faceOf(free)), "чего нет");
}

TEST_F(ListOnDesktop, ShowsRowsThatComeAndGo) {
  only.setIndex(1);
  only.addRow("Творог");
  EXPECT_EQ(box(only)->count(), 5);
  EXPECT_EQ(shownText(faceOf(only)), "Кефир");
  only.clear();
  EXPECT_EQ(box(only)->count(), 0);
  EXPECT_EQ(shownText(faceOf(only)), "");
}

TEST_F(ListOnDesktop, AFreeTextStaysWhenRowsChange) {
  free.setText("свой");
  free.addRow("Творог");
  EXPECT_EQ(shownText(faceOf(free)), "свой");
}

TEST_F(ListOnDesktop, TypingChangesTheTextAndPicksNothing) {
  click(box(free)->lineEdit());
  type("мо");
  EXPECT_THAT(events, ElementsAre("Change м", "Change мо"));
  EXPECT_EQ(free.index(), -1);
}

TEST_F(ListOnDesktop, ProposesRowsThatHoldWhatIsTypedInAnyCase) {
  click(box(free)->lineEdit());
  type("ло");
  EXPECT_THAT(proposed(), ElementsAre("Молоко", "Молоко топлёное"));
  type("щ");
  EXPECT_EQ(proposals(), nullptr) << "nothing fits, nothing is proposed";
}

TEST_F(ListOnDesktop, AProposalIsTakenOnlyWhenItIsPicked) {
  click(box(free)->lineEdit());
  type("топ");
  takeEvents();
  press(Qt::Key_Down);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(free.text(), "топ");
  press(Qt::Key_Return);
  EXPECT_THAT(events, ElementsAre("Change Молоко топлёное", "Click 2"))
      << "the key that picks doesn't press the form's button";
  EXPECT_EQ(shownText(faceOf(free)), "Молоко топлёное");
  EXPECT_TRUE(focusIsAt(free));
}

TEST_F(ListOnDesktop, AProposalIsPickedByAClick) {
  click(box(free)->lineEdit());
  type("кеф");
  takeEvents();
  QAbstractItemView* popup = proposals();
  ASSERT_NE(popup, nullptr);
  click(popup->viewport(), popup->visualRect(popup->model()->index(0, 0)).center());
  EXPECT_THAT(events, ElementsAre("Change Кефир", "Click 1"));
}

TEST_F(ListOnDesktop, EscapeClosesTheProposalsAndKeepsTheText) {
  click(box(free)->lineEdit());
  type("ке");
  press(Qt::Key_Escape);
  EXPECT_EQ(proposals(), nullptr);
  EXPECT_EQ(free.text(), "ке");
  EXPECT_TRUE(focusIsAt(free));
}

TEST_F(ListOnDesktop, TabLeavesFromUnderTheProposals) {
  click(box(free)->lineEdit());
  type("ке");
  ASSERT_NE(proposals(), nullptr);
  press(Qt::Key_Tab);
  EXPECT_EQ(proposals(), nullptr);
  EXPECT_TRUE(focusIsAt(only));
  EXPECT_EQ(free.text(), "ке");
}

TEST_F(ListOnDesktop, LeavingAFreeTextPicksNothing) {
  click(box(free)->lineEdit());
  type("сыр");
  press(Qt::Key_Escape);
  takeEvents();
  press(Qt::Key_Tab);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(free.index(), -1);
  EXPECT_EQ(shownText(faceOf(free)), "сыр");
}

TEST_F(ListOnDesktop, EnterPressesTheFormsButtonWhenNothingIsProposed) {
  click(box(free)->lineEdit());
  press(Qt::Key_Return);
  EXPECT_THAT(events, ElementsAre("accept.Click"));
}

TEST_F(ListOnDesktop, DropsLineBreaksOfAPastedText) {
  click(box(free)->lineEdit());
  paste("Ке\r\nфир");
  EXPECT_EQ(free.text(), "Кефир");
  EXPECT_EQ(free.index(), 1);
  EXPECT_EQ(shownText(faceOf(free)), "Кефир");
}

TEST_F(ListOnDesktop, TheWheelChangesNothing) {
  click(box(free)->lineEdit());
  QWheelEvent wheel(QPointF(5, 5), widgetOf(free)->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(widgetOf(free), &wheel);
  EXPECT_EQ(free.index(), -1);
  EXPECT_FALSE(wheel.isAccepted()) << "the window around it may scroll";
}

TEST_F(ListOnDesktop, AListOfAllProductsOpensAndProposesFewRows) {
  std::vector<std::string> rows;
  for (int i = 0; i < 32767; ++i) rows.push_back("Товар № " + std::to_string(i));
  free.setRows(rows);
  EXPECT_EQ(box(free)->count(), 32767);
  pick(free, 32766);
  EXPECT_EQ(free.index(), 32766);
  press(Qt::Key_A, Qt::ControlModifier);
  type("товар 3276");
  EXPECT_THAT(proposed(),
              ElementsAre("Товар № 3276", "Товар № 13276", "Товар № 23276", "Товар № 32760",
                          "Товар № 32761", "Товар № 32762", "Товар № 32763", "Товар № 32764",
                          "Товар № 32765", "Товар № 32766"));
  press(Qt::Key_Backspace);
  EXPECT_EQ(proposed().size(), static_cast<std::size_t>(Proposals::most));
}

class ProposalsTest : public FormWindow {
 protected:
  DropDownList list{form, "list"};
  desktop::ProposalsModel proposals{list, nullptr};

  std::vector<std::string> proposed(const QString& typed) {
    proposals.propose(typed);
    std::vector<std::string> rows;
    for (int i = 0; i < proposals.rowCount(); ++i) {
      rows.push_back(list.rows()[static_cast<std::size_t>(proposals.listRow(i))]);
    }
    return rows;
  }
};

TEST_F(ProposalsTest, PutsRowsThatBeginWithItFirst) {
  list.setRows({"Сырок", "Плавленый сыр", "сыр"});
  EXPECT_THAT(proposed("СЫР"), ElementsAre("Сырок", "сыр", "Плавленый сыр"));
}

TEST_F(ProposalsTest, FindsEachWordAnywhere) {
  list.setRows({"Молоко 3,2 % 1 л", "Молоко 2,5 % 1 л", "Кефир 3,2 %"});
  EXPECT_THAT(proposed("3,2 мол"), ElementsAre("Молоко 3,2 % 1 л"));
}

TEST_F(ProposalsTest, FindsNothingAcrossTwoRows) {
  list.setRows({"аб", "вг"});
  EXPECT_THAT(proposed("бв"), IsEmpty());
}

TEST_F(ProposalsTest, KeepsRowsApartThatHoldLineBreaks) {
  list.setRows({"а\nб", "вода"});
  EXPECT_THAT(proposed("вода"), ElementsAre("вода"));
  EXPECT_THAT(proposed("б"), ElementsAre("а\nб"));
}

TEST_F(ProposalsTest, FollowsRowsThatChange) {
  list.setRows({"Сыр"});
  EXPECT_THAT(proposed("сыр"), ElementsAre("Сыр"));
  list.setRows({"Кефир", "Сыр"});
  proposals.rowsChanged();
  EXPECT_EQ(proposals.rowCount(), 0);
  EXPECT_THAT(proposed("сыр"), ElementsAre("Сыр"));
}

TEST_F(ProposalsTest, ProposesNothingForNothing) {
  list.setRows({"Сыр"});
  EXPECT_THAT(proposed("  "), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
