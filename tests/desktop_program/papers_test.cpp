#include <QApplication>
#include <QPdfWriter>
#include <QPrinter>
#include <QTimer>

#include "desktop_program/program_test.h"
#include "hosts/desktop/layouts/paper_view.h"
#include "hosts/desktop/window/paper_maker.h"
#include "support/files/files.h"

namespace awizo::test {
namespace {

class PapersTest : public ProgramTest {
 protected:
  desktop::PaperMaker& maker() { return widget().paperMaker(); }
  PapersDialog& dialog() { return maker().dialog(); }

  /// Does this while the dialog that the act opens is on the screen.
  void during(const std::function<void()>& act, const std::function<void()>& inside) {
    bool came = false;
    QTimer whenShown;
    QObject::connect(&whenShown, &QTimer::timeout, [&] {
      if (came || !dialog().shown()) return;
      came = true;
      inside();
      dialog().btnClose.userClick();
    });
    whenShown.start(0);
    act();
    EXPECT_TRUE(came);
  }

  /// The picture that the user sees of the sheet.
  QImage seen() const {
    auto* view = QApplication::activeModalWidget()->findChild<QWidget*>();
    for (QWidget* part : QApplication::activeModalWidget()->findChildren<QWidget*>()) {
      if (dynamic_cast<desktop::PaperView*>(part) != nullptr) view = part;
    }
    return view->grab().toImage();
  }
};

int darkPixels(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x)
      count += image.pixelColor(x, y).lightness() < 80 ? 1 : 0;
  }
  return count;
}

TEST_F(PapersTest, KeysShowThePapersOfTheDocument) {
  open(offLineOptions());
  during([this] { press(Qt::Key_L, Qt::ControlModifier); },
         [this] { EXPECT_EQ(dialog().lblNotes.caption(), "В документе нет упаковок."); });
  during([this] { press(Qt::Key_P, Qt::ControlModifier); },
         [this] {
           EXPECT_EQ(dialog().lblSheet.caption(), "лист 1 из 1");
           EXPECT_GT(darkPixels(seen()), 100) << "the sheet is drawn";
         });
}

TEST_F(PapersTest, WritesThePapersOfASavedDocument) {
  open(offLineOptions());
  const std::string sample = (projectFolder() / "samples/despatch-advice.xml").string();
  const std::string target = (place.folder() / "labels.pdf").string();
  maker().askDocument = [&] { return QString::fromStdString(sample); };
  maker().askTarget = [&](const QString& proposed) {
    EXPECT_EQ(proposed, "Этикетки_ОТГ-0318.pdf");
    return QString::fromStdString(target);
  };
  during([this] { maker().showSaved(); },
         [this] {
           EXPECT_EQ(dialog().lblSheet.caption(), "лист 1 из 4");
           dialog().btnPdf.userClick();
         });
  EXPECT_TRUE(readFile(target).starts_with("%PDF-"));
}

TEST_F(PapersTest, WritesThePackingListAsATable) {
  open(offLineOptions());
  form().txtNrAwiza.userType("ТН/7");
  const std::string target = (place.folder() / "list.csv").string();
  maker().askTarget = [&](const QString& proposed) {
    EXPECT_EQ(proposed, "Упаковочный_лист_ТН_7.csv");
    return QString::fromStdString(target);
  };
  maker().writePackingCsv();
  EXPECT_TRUE(readFile(target).starts_with("\xEF\xBB\xBF"))
      << "spreadsheets know the letters by it";
  EXPECT_NE(readFile(target).find(";"), std::string::npos);
  maker().askTarget = [](const QString&) { return QString(); };
  EXPECT_TRUE(answerWithEnter([this] { maker().writePackingCsv(); }).empty());
  maker().askTarget = [](const QString&) { return QString("/nowhere/list.csv"); };
  EXPECT_THAT(answerWithEnter([this] { maker().writePackingCsv(); }),
              ::testing::ElementsAre(::testing::HasSubstr("нет такой папки")));
}

TEST_F(PapersTest, TellsWhatCannotBeWrittenOrRead) {
  open(offLineOptions());
  const std::string sample = (projectFolder() / "samples/despatch-advice.xml").string();
  maker().askDocument = [&] { return QString::fromStdString(sample); };
  maker().askTarget = [](const QString&) { return QString("/nowhere/labels.pdf"); };
  std::vector<std::string> boxes;
  during([this] { maker().showSaved(); },
         [&, this] { boxes = answerWithEnter([this] { dialog().btnPdf.userClick(); }); });
  EXPECT_THAT(boxes, ::testing::ElementsAre(::testing::HasSubstr("нет такой папки")));
  maker().askDocument = [&] { return QString("/nowhere/a.xml"); };
  boxes = answerWithEnter([this] { maker().showSaved(); });
  EXPECT_THAT(boxes, ::testing::ElementsAre(::testing::HasSubstr("нет такой папки")));
}

/// A printer that prints into a file, as there is no other where tests run.
auto printingInto(const std::string& file) {
  return [file](const QString& title) {
    EXPECT_FALSE(title.isEmpty());
    return std::make_unique<QPdfWriter>(QString::fromStdString(file));
  };
}

TEST_F(PapersTest, PrintsWhatIsShown) {
  open(offLineOptions());
  const std::string target = (place.folder() / "printed.pdf").string();
  maker().hasPrinter = [] { return true; };
  maker().choosePrinter = printingInto(target);
  during([this] { maker().show(Paper::packingList); }, [this] { dialog().btnPrint.userClick(); });
  EXPECT_TRUE(readFile(target).starts_with("%PDF-"));
}

/// Tells how the paper was when it went.
class WatchedPrinter final : public QPrinter {
 public:
  WatchedPrinter(const std::string& file, QPageLayout& seen)
      : QPrinter(QPrinter::HighResolution), seen_(seen) {
    setOutputFormat(QPrinter::PdfFormat);
    setOutputFileName(QString::fromStdString(file));
  }
  ~WatchedPrinter() override { seen_ = pageLayout(); }

 private:
  QPageLayout& seen_;
};

TEST_F(PapersTest, APrinterPrintsFromTheEdgeOfTheSheet) {
  open(offLineOptions());
  const std::string target = (place.folder() / "printed.pdf").string();
  QPageLayout seen;
  maker().hasPrinter = [] { return true; };
  maker().choosePrinter = [&](const QString&) {
    return std::make_unique<WatchedPrinter>(target, seen);
  };
  during([this] { maker().show(Paper::packingList); }, [this] { dialog().btnPrint.userClick(); });
  EXPECT_TRUE(readFile(target).starts_with("%PDF-"));
  EXPECT_EQ(seen.mode(), QPageLayout::FullPageMode);
  EXPECT_EQ(seen.paintRectPoints(), QRect(0, 0, 595, 842));
}

/// A printer with paper of its own measures.
class OwnPaperWriter final : public QPdfWriter {
 public:
  OwnPaperWriter(const std::string& file, const QSizeF& millimetres)
      : QPdfWriter(QString::fromStdString(file)), own_(millimetres, QPageSize::Millimeter) {}
  bool setPageLayout(const QPageLayout& layout) override {
    QPageLayout own = layout;
    own.setPageSize(own_);
    QPdfWriter::setPageLayout(own);
    return false;
  }

 private:
  QPageSize own_;
};

TEST_F(PapersTest, OnOtherPaperNothingIsPrinted) {
  open(offLineOptions());
  std::vector<std::string> boxes;
  QSizeF paper;
  const std::string target = (place.folder() / "printed.pdf").string();
  maker().hasPrinter = [] { return true; };
  maker().choosePrinter = [&](const QString&) {
    return std::make_unique<OwnPaperWriter>(target, paper);
  };
  const auto print = [&, this] {
    during([this] { maker().show(Paper::packingList); },
           [&, this] { boxes = answerWithEnter([this] { dialog().btnPrint.userClick(); }); });
  };
  paper = {100, 150};
  print();
  EXPECT_THAT(boxes, ::testing::ElementsAre(::testing::HasSubstr("Листы не напечатаны")));
  EXPECT_FALSE(std::filesystem::exists(target) && readFile(target).starts_with("%PDF-"));
  paper = {209.7, 296.7};
  print();
  EXPECT_THAT(boxes, ::testing::IsEmpty()) << "it is A4, as this printer has it";
  EXPECT_TRUE(readFile(target).starts_with("%PDF-"));
}

TEST_F(PapersTest, TellsWhatIsNotPrinted) {
  open(offLineOptions());
  std::vector<std::string> boxes;
  const auto print = [&, this] {
    during([this] { maker().show(Paper::packingList); },
           [&, this] { boxes = answerWithEnter([this] { dialog().btnPrint.userClick(); }); });
  };
  maker().hasPrinter = [] { return false; };
  maker().choosePrinter = [](const QString&) {
    ADD_FAILURE() << "there is none to choose";
    return nullptr;
  };
  print();
  EXPECT_THAT(boxes, ::testing::ElementsAre(::testing::HasSubstr("нет ни одного принтера")));
  maker().hasPrinter = [] { return true; };
  maker().choosePrinter = [](const QString&) { return nullptr; };
  print();
  EXPECT_THAT(boxes, ::testing::IsEmpty());
  maker().choosePrinter = printingInto("/nowhere/printed.pdf");
  print();
  EXPECT_THAT(boxes, ::testing::ElementsAre(::testing::HasSubstr("Листы не напечатаны")));
}

}  // namespace
}  // namespace awizo::test
