#include "desktop_program/program_test.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "adapters/posix/settings_stores.h"
#include "hosts/desktop/program/addresses.h"

namespace awizo::test {
namespace {

constexpr int patience = 30000;

}  // namespace

ProgramTest::~ProgramTest() { window_.reset(); }

Options ProgramTest::offLineOptions() const {
  Options options;
  options.properties = {{"OnLine", "Off"},
                        {"PartnerName", "Demo"},
                        {"PartnerILN", "9520002000019"},
                        {"PartnerURL", "partner"}};
  options.settingsFile = place.settings().string();
  options.offLinePath = place.folder().string();
  options.locale = "ru_RU";
  options.now = Moment{makeDate(2026, 11, 21), {10, 15, 0}};
  return options;
}

Options ProgramTest::onLineOptions(const DemoService& service) const {
  Options options = offLineOptions();
  options.properties.erase("OnLine");
  options.pageUrl = service.pageUrl();
  options.cookie = "session=1; user=anna";
  return options;
}

void ProgramTest::agreeTo(const DemoService& service) const {
  SettingsFile settings(place.settings().string());
  AgreedAddresses(settings).add(originOf(desktop::splitAddress, service.pageUrl()));
}

void ProgramTest::show(const Options& options) {
  window_.reset();
  started_ = false;
  window_ = std::make_unique<desktop::MainWindow>(options, nullptr, records);
  follow();
  window_->show();
}

void ProgramTest::follow() {
  started_ = false;
  if (!window_->hasSession()) return;
  QObject::connect(&widget(), &desktop::AwizoWysylkiWidget::startEnded, &widget(),
                   [this] { started_ = true; });
}

desktop::StartPageWidget& ProgramTest::waitForStartPage() {
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window_->hasSession(); }, patience));
  settle();
  return window_->startPage();
}

void ProgramTest::open(const Options& options) {
  show(options);
  waitForStart();
}

void ProgramTest::waitForStart() {
  ASSERT_TRUE(QTest::qWaitFor([this] { return started_; }, patience)) << "the start doesn't end";
  settle();
}

void ProgramTest::waitForClosing() {
  ASSERT_TRUE(QTest::qWaitFor([this] { return isClosed(); }, patience)) << "the window stays";
}

std::vector<std::string> ProgramTest::answerWithEnter(const std::function<void()>& act) {
  std::vector<std::string> boxes;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    // A box that has just come isn't the active window yet.
    if (box == nullptr || QApplication::activeWindow() != box) return;
    boxes.push_back(seen(*box));
    press(Qt::Key_Return);
  });
  look.start(10);
  act();
  return boxes;
}

void ProgramTest::addLine(const std::string& name, const std::string& despatched) {
  answerWithEnter([&] {
    then([=, this] {
      DlgDodaj& line = control().dlgDodaj;
      line.txtlEANProdWart.userType("4607000000116");
      line.txtNazwaProdWart.userType(name);
      line.txtIloscPotw.userType(despatched);
      line.btnDodaj.userClick();
    });
    form().btnDodaj.userClick();
  });
}

void ProgramTest::tabTo(const Control& control) {
  const std::size_t most = control.form().controls().size();
  for (std::size_t step = 0; step <= most && control.form().focus() != &control; ++step) {
    press(Qt::Key_Tab);
  }
  EXPECT_EQ(control.form().focus(), &control) << control.name() << " can't be reached by Tab";
}

}  // namespace awizo::test
