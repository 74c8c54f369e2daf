#include "desktop_program/program_test.h"
#include "platform/text.h"
#include "support/files/files.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

/// A user who packs by the keyboard alone, and each of whose keys counts.
class PackingKeysTest : public ProgramTest {
 protected:
  PackingKeysTest() {
    std::filesystem::create_directories(documents);
    qputenv("HOME", documents.parent_path().c_str());
  }
  ~PackingKeysTest() override {
    close();
    qputenv("HOME", earlier_);
  }

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
  /// The firm's range is entered, which has to be done once.
  void enterRange() {
    key(static_cast<Qt::Key>(u'Б'), Qt::AltModifier);
    then([this] {
      text("9520001");
      key(Qt::Key_Tab);
      key(Qt::Key_Tab);
      text("1000");
      key(Qt::Key_Return);
    });
    key(static_cast<Qt::Key>(u'Н'));
  }
  /// In the dialog for files the name that is proposed is taken.
  void writePaper(char letter, const std::string& file) {
    key(letter, [this] {
      then([this] { key(Qt::Key_Return); });
      key(static_cast<Qt::Key>(u'В'), Qt::AltModifier);
      key(Qt::Key_Escape);
    });
    EXPECT_TRUE(readFile(documents / file).starts_with("%PDF-")) << file;
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

  /// Where the dialog for files begins.
  const std::filesystem::path documents = place.folder() / "home" / "Documents";
  int keys = 0;

 private:
  QByteArray earlier_ = qgetenv("HOME");
};

TEST_F(PackingKeysTest, AnOrderOf25LinesIsPackedWithItsPapersByFortyKeys) {
  const DemoService service(place.posted(), {"--data", dataWithoutFaults()});
  agreeTo(service);
  open(onLineOptions(service));
  const Table& lines = form().grdPozycje;
  const Table& packages = form().grdOpakowania;
  ASSERT_EQ(control().editor.session.LineCount, 25);

  enterRange();
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
  writePaper('L', "Этикетки.pdf");
  writePaper('P', "Упаковочный_лист.pdf");

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
