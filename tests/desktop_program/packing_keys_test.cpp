#include "adapters/memory/fixed_clock.h"
#include "adapters/posix/posix_shared_store.h"
#include "desktop_program/program_test.h"
#include "hosts/desktop/window/assistants.h"
#include "hosts/desktop/window/paper_maker.h"
#include "numbers/given_numbers.h"
#include "platform/text.h"
#include "support/files/files.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// A user who packs by the keyboard alone, and each of whose keys counts.
class PackingKeysTest : public ProgramTest {
 protected:
  PackingKeysTest() { numbers.setRange({"3", "9520001", 1, 1000, 1}); }
  ~PackingKeysTest() override { close(); }

  void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ++keys;
    press(pressed, modifiers);
  }
  /// A key that opens a dialog, in which the user does the rest.
  void key(char letter, const std::function<void()>& inside) {
    then(inside);
    key(static_cast<Qt::Key>(letter), Qt::ControlModifier);
  }
  void text(const QString& typed) {
    keys += static_cast<int>(typed.size());
    type(typed);
  }
  /// The name that is proposed is taken.
  void writePaper(char letter, const std::string& file) {
    const std::string target = (place.folder() / file).string();
    widget().paperMaker().askTarget = [this, target](const QString&) {
      ++keys;
      return QString::fromStdString(target);
    };
    key(letter, [this] {
      key(static_cast<Qt::Key>(u'В'), Qt::AltModifier);
      key(Qt::Key_Escape);
    });
    EXPECT_TRUE(readFile(target).starts_with("%PDF-")) << file;
  }
  /// The demo's order, without the faults that it shows in two of its lines.
  std::string dataWithoutFaults() {
    const std::filesystem::path data = place.folder() / "data";
    std::filesystem::copy(projectFolder() / "demo/data", data);
    std::string order = readFile(data / "order.xml");
    order = replaceAll(replaceAll(order, "ABC", "4607000000116"), "договорная", "1.00");
    writeFile(data / "order.xml", order);
    return data.string();
  }
  std::string packed(int row) { return form().grdPozycje.cell(row, GRD_POZ_PACKED_QTY); }

  PosixSharedStore store{(place.settings().string() + "-numbers-")};
  FixedClock clock{{makeDate(2026, 11, 21), {10, 15, 0}}};
  GivenNumbers numbers{store, clock};
  int keys = 0;
};

TEST_F(PackingKeysTest, AnOrderOf25LinesIsPackedWithItsPapersByFortyKeys) {
  const DemoService service(place.posted(), {"--data", dataWithoutFaults()});
  agreeTo(service);
  open(onLineOptions(service));
  const Table& lines = form().grdPozycje;
  const Table& packages = form().grdOpakowania;
  ASSERT_EQ(control().editor.session.LineCount, 25);

  key('N', [this] {
    text("1");
    key(Qt::Key_Tab);
    key(Qt::Key_Up);
    key(Qt::Key_Return);
  });
  key('N', [this] {
    text("2");
    key(Qt::Key_Return);
  });
  key('D', [this] { key(Qt::Key_Return); });
  writePaper('L', "labels.pdf");
  writePaper('P', "list.pdf");

  ASSERT_EQ(control().editor.session.IloscPozycjiOpak, 3);
  EXPECT_EQ(packages.cell(1, GRD_OPAK_TYPE), "09");
  for (int row : {2, 3}) EXPECT_EQ(packages.cell(row, GRD_OPAK_PARENT_DESC), "Паллета 1") << row;
  for (int row = 1; row <= 3; ++row) {
    EXPECT_EQ(packages.cell(row, GRD_OPAK_SERIAL_NUMBER).size(), 18U) << row;
  }
  for (int row = 1; row <= 25; ++row) {
    EXPECT_EQ(packed(row), lines.cell(row, GRD_POZ_QTY_DESPATCHED)) << row;
  }
  EXPECT_LE(keys, 40);
  RecordProperty("keys", keys);
}

}  // namespace
}  // namespace awizo::test
