// What is sent to a client that mirrors forms.

#include "hosts/protocol/changes/change_feed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hosts/protocol/changes/feed_actions.h"
#include "protocol/sample_forms.h"
#include "support/mirror/mirror.h"

namespace awizo::protocol::test {
namespace {

class ChangeFeedTest : public testing::Test {
 protected:
  ChangeFeedTest() {
    addFeedActions(client.sample.dispatcher, client.sample.directory, feed);
    client.form.showMain();
  }

  /// What a flush sends; an empty object for nothing.
  Json flush() {
    told_ = Json::object();
    feed.flush();
    return told_;
  }
  void subscribe() {
    feed.subscribe(client.form);
    flush();
  }
  bool does(const std::string& line) { return client.closingOf(line)["ok"] == true; }

  SampleClient client;
  awizo::test::Mirror mirror;
  Json told_;
  ChangeFeed feed{client.sample.directory, [this](const Json& changes) {
                    told_ = changes;
                    mirror.take(changes);
                  }};
};

TEST(WithoutAFeed, NobodyCanSubscribe) {
  SampleClient client;
  EXPECT_EQ(client.closingOf(R"({"do":"subscribe"})")["error"],
            "There is no action \"subscribe\".");
}

TEST_F(ChangeFeedTest, WithoutASubscriptionNothingIsTold) {
  client.form.field.setText("a");
  EXPECT_TRUE(flush().empty());
}

TEST_F(ChangeFeedTest, ASubscriptionBeginsWithAllOfTheForm) {
  feed.subscribe(client.form);
  const Json told = flush();
  EXPECT_EQ(told["event"], "changes");
  EXPECT_EQ(told["forms"]["Main"]["controls"].size(), client.form.controls().size());
  EXPECT_EQ(told["controls"].size(), client.form.controls().size());
  EXPECT_TRUE(flush().empty()) << "and goes on with what changes";
}

TEST_F(ChangeFeedTest, OnlyTheChangedMembersAreTold) {
  subscribe();
  client.form.field.setText("7");
  client.form.button.setEnabled(false);
  EXPECT_EQ(flush().dump(),
            R"({"event":"changes","controls":{"field":{"text":"7"},"button":{"enabled":false}}})");
}

TEST_F(ChangeFeedTest, WhatChangedAndChangedBackIsNotTold) {
  subscribe();
  client.form.field.setText("7");
  client.form.field.setText("");
  EXPECT_TRUE(flush().empty());
}

TEST_F(ChangeFeedTest, ACellTellsItsRowAlone) {
  subscribe();
  client.form.table.setCell(2, 1, "b");
  client.form.table.setBackground(2, 1, pink);
  EXPECT_EQ(
      flush()["controls"].dump(),
      R"({"table":{"lines":[{"row":2,"height":240,"cells":["","b",""],"looks":[{"col":1,"colour":"#ffc0c0","alignment":"left","bold":false,"wrap":false}]}]}})");
  client.form.table.setRow(2);
  EXPECT_EQ(flush()["controls"].dump(), R"({"table":{"row":2,"rowSel":2}})");
}

TEST_F(ChangeFeedTest, TheTextOfALongListTellsNoRows) {
  subscribe();
  client.form.list.setRows(std::vector<std::string>(32767, "row"));
  EXPECT_EQ(flush()["controls"]["list"]["lines"].size(), 100U);
  client.form.list.setText("typed");
  EXPECT_EQ(flush()["controls"].dump(), R"({"list":{"text":"typed"}})");
}

TEST_F(ChangeFeedTest, RowsComeAsTheClientShowsThem) {
  subscribe();
  client.form.table.setRows(200);
  flush();
  ASSERT_TRUE(does(R"({"do":"see","on":"table","first":150,"count":2})"));
  EXPECT_EQ(flush()["controls"]["table"]["lines"].size(), 2U);
  client.form.table.setCell(149, 0, "out of view");
  EXPECT_TRUE(flush().empty());
  client.form.table.setCell(151, 0, "in view");
  EXPECT_EQ(flush()["controls"]["table"]["lines"][0]["row"], 151);
}

TEST_F(ChangeFeedTest, AFormThatIsShownAndHiddenIsToldSo) {
  ASSERT_TRUE(does(R"({"do":"subscribe"})"));
  flush();
  client.face.actUnscripted = [&](Form& dialog) {
    EXPECT_EQ(flush()["forms"].dump(), R"({"Dialog":{"shown":true,"focus":"Dialog.drives"}})");
    dialog.hide();
  };
  client.dialog.showModal();
  EXPECT_EQ(flush()["forms"].dump(), R"({"Dialog":{"shown":false}})");
}

TEST_F(ChangeFeedTest, AFolderThatAppearsIsToldThoughNoModelHearsOfIt) {
  ASSERT_TRUE(does(R"({"do":"subscribe","forms":["Dialog"]})"));
  client.face.actUnscripted = [&](Form& dialog) {
    client.dialog.folders.setPath("c:\\a");
    flush();
    client.sample.files.putFolder("c:\\a\\new");
    EXPECT_EQ(flush()["controls"].dump(), R"({"Dialog.folders":{"rows":["new"]}})");
    dialog.hide();
  };
  client.dialog.showModal();
}

TEST_F(ChangeFeedTest, AnEndedSubscriptionTellsNothingMore) {
  ASSERT_TRUE(does(R"({"do":"subscribe"})"));
  flush();
  ASSERT_TRUE(does(R"({"do":"unsubscribe","forms":["Main"]})"));
  client.form.field.setText("a");
  EXPECT_TRUE(flush().empty());
  EXPECT_FALSE(does(R"({"do":"see","on":"table","first":0,"count":1})"));
}

TEST_F(ChangeFeedTest, LinesThatSayNothingAreRefused) {
  subscribe();
  for (const char* line :
       {R"({"do":"subscribe","forms":"Main"})", R"({"do":"subscribe","forms":["No"]})",
        R"({"do":"subscribe","forms":[1]})", R"({"do":"see","on":"table"})",
        R"({"do":"see","on":"table","first":-1,"count":1})",
        R"({"do":"see","on":"table","first":0,"count":-1})"}) {
    EXPECT_FALSE(does(line)) << line;
  }
  EXPECT_TRUE(flush().empty());
}

}  // namespace
}  // namespace awizo::protocol::test
