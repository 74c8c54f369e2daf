#include "benchmarks/process/roles.h"

#include <QApplication>
#include <QMainWindow>
#include <QTableView>

#include "benchmarks/support/full_size.h"
#include "hosts/desktop/faces/program_style.h"
#include "hosts/desktop/program/main_window.h"

namespace awizo::benchmarks {
namespace {

/// Qt as a program has it, on a screen that isn't there but is as large as most are.
struct QtProgram {
  int count = 1;
  char name[8] = "program";
  char* arguments[2] = {name, nullptr};
  QApplication application{
      (qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" AWIZO_SCREEN), count), arguments};
};

void paint() {
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
}

}  // namespace

int parseFiles(const std::vector<std::string>& files) {
  for (const std::string& file : files) parseBareFile(file);
  return 0;
}

int showBareWindow() {
  const QtProgram program;
  QMainWindow window;
  window.setCentralWidget(new QTableView);
  window.resize(1024, 700);
  window.show();
  paint();
  return 0;
}

int showMainWindow(const std::vector<std::string>& arguments) {
  desktop::setProgramStyle();
  const QtProgram program;
  desktop::MainWindow window(parseOptions(arguments));
  bool started = false;
  QObject::connect(&window.widget(), &desktop::AwizoWysylkiWidget::startEnded,
                   [&] { started = true; });
  window.show();
  while (!started) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  paint();
  // The document is new to its service; nobody is there to be asked whether it may go.
  std::_Exit(0);
}

}  // namespace awizo::benchmarks
