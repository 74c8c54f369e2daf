// Draws the main window and every dialog, filled with the demo's data, into PNG files.
// usage: awizo-pictures FOLDER [--dark] [--size WIDTHxHEIGHT] [--font POINTS]

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <filesystem>
#include <iostream>

#include "adapters/posix/clocks.h"
#include "hosts/common/given_host.h"
#include "hosts/common/machine/machine.h"
#include "hosts/desktop/screenshots/demo_http.h"
#include "hosts/desktop/screenshots/demo_user.h"
#include "hosts/desktop/screenshots/offscreen_screen.h"
#include "hosts/desktop/window/start_page_widget.h"

namespace {

// Nothing includes a program's own file. NOLINTNEXTLINE(google-build-using-namespace)
using namespace awizo;
namespace fs = std::filesystem;

constexpr const char* usage =
    "usage: awizo-pictures FOLDER [--dark] [--size WIDTHxHEIGHT] [--font POINTS]\n";

QPalette darkPalette() {
  QPalette palette(QColor(45, 48, 52));
  palette.setColor(QPalette::Base, QColor(30, 32, 35));
  palette.setColor(QPalette::AlternateBase, QColor(38, 41, 45));
  palette.setColor(QPalette::ToolTipBase, QColor(60, 64, 70));
  palette.setColor(QPalette::Highlight, QColor(46, 120, 160));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::ToolTipText, QPalette::HighlightedText}) {
    palette.setColor(role, QColor(232, 234, 237));
    palette.setColor(QPalette::Disabled, role, QColor(140, 144, 150));
  }
  palette.setColor(QPalette::PlaceholderText, QColor(160, 164, 170));
  return palette;
}

Options demoOptions() {
  Options options;
  options.properties = {
      {"PartnerName", "Demo"}, {"PartnerILN", "9520002000019"}, {"PartnerURL", "partner"}};
  options.pageUrl = "http://127.0.0.1:8080/vird/page/editor.html";
  options.cookie = "demo";
  options.locale = "ru_RU";
  options.now = Moment{makeDate(2026, 11, 27), {10, 15, 0}};
  return options;
}

/// A copy of the demo's folder, which the program writes to; gone at the end.
class DemoFolder {
 public:
  DemoFolder() {
    fs::copy(fs::path(AWIZO_DEMO_FOLDER) / "folder", path(), fs::copy_options::recursive);
    // What the user saved before.
    for (const char* name : {"0098", "0099", "0100"}) {
      fs::copy(
          fs::path(AWIZO_DEMO_FOLDER) / "../samples/despatch-advice.xml",
          fs::path(documents()) / ("Подтверждение_отгрузки_ТН-2026_" + std::string(name) + ".xml"));
    }
  }
  std::string documents() const { return root_.path().toStdString(); }
  std::string path() const { return root_.filePath("VIRD").toStdString(); }

 private:
  QTemporaryDir root_{QDir::tempPath() + "/Отгрузки-XXXXXX"};
};

/// Returns the program's exit status.
bool takeStartPage(const desktop::GivenParts& given, const fs::path& pictures, const QSize& size) {
  desktop::StartPageWidget start(given);
  start.page().show("", false);
  start.resize(size);
  start.show();
  QCoreApplication::processEvents();
  return start.grab().save(QString::fromStdString((pictures / "start-page.png").string()));
}

int draw(const fs::path& pictures, const QSize& size) {
  const DemoFolder folder;
  Options options = demoOptions();
  options.offLinePath = folder.path();
  OptionsBag bag(options);
  OptionsPage page(options);
  const auto settings = makeSettings(options);
  const auto clock = makeClock(options);
  if (!takeStartPage({bag, page, *settings, options.locale, clock.get()}, pictures, size)) return 1;
  desktop::DemoHttp http(fs::path(AWIZO_DEMO_FOLDER) / "data");
  QMainWindow window;
  desktop::GivenParts parts{bag, page, *settings, options.locale, clock.get(), &http};
  parts.numbersBeginning = folder.documents() + "/.numbers-";
  auto* widget = new desktop::AwizoWysylkiWidget(parts);
  window.setCentralWidget(widget);
  window.resize(size);
  QObject::connect(widget, &desktop::AwizoWysylkiWidget::startEnded, &window, [&] {
    desktop::DemoUser user(*widget, pictures, folder.documents());
    user.work();
    QApplication::exit(user.allTaken() ? 0 : 1);
  });
  window.show();
  return QApplication::exec();
}

/// Takes the option and its value out of the arguments; empty where it isn't given.
QString takeOption(QStringList& given, const QString& name) {
  const auto at = given.indexOf(name);
  if (at < 0 || at + 1 >= given.size()) return {};
  const QString value = given[at + 1];
  given.remove(at, 2);
  return value;
}

void useFont(double points) {
  QFont font = QApplication::font();
  font.setPointSizeF(points);
  QApplication::setFont(font);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  QStringList given(arguments + 1, arguments + argumentCount);
  const QStringList sides = takeOption(given, "--size").split('x');
  const bool isSized = sides.size() == 2;
  const QSize size = isSized ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize(1024, 700);
  QTemporaryFile screen;
  if (!desktop::useOffscreenScreen(screen, isSized ? size : QSize(1920, 1080))) {
    std::cerr << "The file that tells the screen's size could not be written.\n";
    return 1;
  }
  // What the platform can't do without a screen isn't worth a line each time.
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  QApplication application(argumentCount, arguments);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QLocale::setDefault(desktop::localeNamed("ru_RU"));
  if (given.removeAll("--dark") > 0) QApplication::setPalette(darkPalette());
  if (const double points = takeOption(given, "--font").toDouble(); points > 0) useFont(points);
  if (given.size() != 1) {
    std::cerr << usage;
    return 2;
  }
  const fs::path pictures = given.front().toStdString();
  try {
    fs::create_directories(pictures);
    return draw(pictures, size);
  } catch (const fs::filesystem_error& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
