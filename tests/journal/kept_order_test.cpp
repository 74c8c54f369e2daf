// An order that the service has handed out, in the records of programs that broke off.

#include <gtest/gtest.h>

#include "journal/state_digest.h"
#include "journal/unfinished_work.h"
#include "support/control/taped_control.h"

namespace awizo::test {
namespace {

using journal::Record;
using journal::RecordKind;

constexpr int orderLines = 25;

std::string orderReply() {
  std::string lines;
  for (int line = 1; line <= orderLines; ++line) {
    lines += "<Line><Line-Item><EAN>4607000000116</EAN><OrderedQuantity>" + std::to_string(line) +
             "</OrderedQuantity></Line-Item></Line>";
  }
  return "<receive-document-response><document-content><Document-Order><Order-Header>"
         "<OrderNumber>ЗК-1</OrderNumber></Order-Header><Order-Lines>" +
         lines + "</Order-Lines></Document-Order></document-content></receive-document-response>";
}

/// With a catalogue that can't be fetched, which a box says.
void startOnLine(TapedControl& session) {
  session.desk.prepareFolder();
  session.desk.preparePage();
  session.desk.http.reply(TestControl::partnerInfo("ООО Покупатель"));
  session.desk.http.fail(errors::hostNotFound());
  session.desk.http.reply("<none/>");
  session.desk.http.reply(orderReply());
  session.recording->start();
  session.show();
}

std::vector<Record> recordsIn(const MemoryRecord& record) {
  return journal::wholeRecords(journal::fileBeginning() + record.bytes).records;
}

MemoryRecord recordOf(const std::vector<Record>& records, std::size_t count) {
  MemoryRecord cut;
  for (std::size_t at = 0; at < count; ++at) cut.bytes += journal::framed(records[at]);
  return cut;
}

/// How many records there are up to the order's reply.
std::size_t lengthToOrder(const std::vector<Record>& records) {
  std::size_t length = 0;
  while (records.at(length).kind != RecordKind::outcome || records[length].texts.empty() ||
         records[length].texts[0].find("<Document-Order>") == std::string::npos) {
    ++length;
  }
  return length + 1;
}

/// Goes on with what a record holds, and then with what that has recorded.
void expectOrderIn(const MemoryRecord& cut, std::uint64_t digest) {
  MemoryRecord own;
  {
    TapedControl replayed(&own, sessionIn(cut).records);
    replayed.desk.prepareFolder();
    replayed.recording->start();
    EXPECT_FALSE(replayed.tape.replaying());
    EXPECT_EQ(replayed.desk.session.LineCount, orderLines);
    EXPECT_EQ(journal::stateDigest(replayed.desk.control), digest);
    EXPECT_TRUE(replayed.desk.control.isDocumentChanged());
    EXPECT_TRUE(replayed.desk.http.sent.empty());
    replayed.desk.form.txtNrAwiza.userType("ТН-6");
  }
  EXPECT_FALSE(sessionIn(own).orderArrived);
  TapedControl again(nullptr, sessionIn(own).records);
  again.recording->start();
  EXPECT_EQ(again.desk.session.LineCount, orderLines);
  EXPECT_EQ(again.desk.form.txtNrAwiza.text(), "ТН-6");
}

TEST(KeptOrder, ComesBackFromEveryRecordBehindItsReply) {
  MemoryRecord record;
  TapedControl recorded(&record);
  startOnLine(recorded);
  ASSERT_EQ(recorded.desk.session.LineCount, orderLines);
  ASSERT_FALSE(recorded.desk.boxes().empty());
  const std::uint64_t digest = journal::stateDigest(recorded.desk.control);
  const std::vector<Record> records = recordsIn(record);
  const std::size_t first = lengthToOrder(records);
  ASSERT_LT(first, records.size());
  EXPECT_FALSE(sessionIn(recordOf(records, first - 1)).orderArrived);
  for (std::size_t length = first; length <= records.size(); ++length) {
    SCOPED_TRACE(length);
    const MemoryRecord cut = recordOf(records, length);
    EXPECT_EQ(sessionIn(cut).orderArrived,
              length < records.size() && records[length - 1].kind != RecordKind::ready);
    EXPECT_FALSE(sessionIn(cut).requestUnanswered);
    expectOrderIn(cut, digest);
  }
}

}  // namespace
}  // namespace awizo::test
