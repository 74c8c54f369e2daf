// The desktop program: the editor of despatch advices in a window.

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QSocketNotifier>
#include <QTranslator>
#include <csignal>
#include <exception>
#include <iostream>
#include <optional>

#include "adapters/posix/posix_one_program.h"
#include "adapters/posix/posix_record_folder.h"
#include "desk/host_boxes.h"
#include "hosts/common/program/about.h"
#include "hosts/desktop/faces/icons.h"
#include "hosts/desktop/faces/program_style.h"
#include "hosts/desktop/program/launch_file.h"
#include "hosts/desktop/program/main_window.h"
#include "hosts/desktop/screen/message_box.h"
#include "journal/texts_beside.h"

namespace {

// Nothing includes a program's own file. NOLINTNEXTLINE(google-build-using-namespace)
using namespace awizo;

constexpr std::string_view usage =
    "usage: awizo [FILE.awizo | FILE.xml] [--property NAME=VALUE]... [--page-url URL] [--cookie "
    "TEXT]\n"
    "             [--settings FILE] [--offline-path DIR] [--locale NAME]\n"
    "             [--now YYYY-MM-DDTHH:MM:SS]\n"
    "       awizo --help | --version\n";
constexpr int exitEndedBySystem = 1;
constexpr int exitBadArguments = 2;

std::vector<std::string> argumentsOf(const QApplication&) {
  std::vector<std::string> arguments;
  for (const QString& argument : QApplication::arguments().mid(1)) {
    arguments.push_back(argument.toStdString());
  }
  return arguments;
}

/// What the program was asked, and the file to begin with, if any.
struct Asked {
  Options options;
  QString file;
  std::string launchFile = {};  ///< its path
};

Asked asked(const std::vector<std::string>& arguments) {
  std::vector<std::string> files;
  Asked asked{parseOptions(arguments, &files), {}};
  if (asked.options.checkedFile) throw BadArguments("awizo-headless checks files");
  if (asked.options.recordFile || asked.options.replayFile) {
    throw BadArguments("awizo-headless records and replays");
  }
  if (files.size() > 1) throw BadArguments("more than one file");
  if (files.empty()) return asked;
  asked.file = QString::fromStdString(files.front());
  if (asked.file.endsWith(".xml", Qt::CaseInsensitive)) return asked;
  try {
    static_cast<GivenSession&>(asked.options) =
        merged(asked.options, desktop::readLaunchFile(files.front()));
  } catch (const BadLaunchFile& error) {
    desktop::askUser(
        launchFileRefusal(QFileInfo(asked.file).fileName().toStdString(), error.what()), nullptr);
    throw;
  }
  asked.launchFile = files.front();
  asked.file.clear();
  return asked;
}

/// The same for launch files that say the same, such as those that a browser has stored twice.
std::string launchName(const std::vector<std::string>& arguments, const std::string& launchFile) {
  std::string said;
  for (const std::string& argument : arguments) {
    if (argument == launchFile) {
      QFile file(QString::fromStdString(launchFile));
      if (file.open(QIODevice::ReadOnly)) said += file.readAll().toStdString();
    } else {
      said += argument;
    }
    said += '\0';
  }
  return journal::nameBeside(said);
}

/// Brings the window before all others when another program calls for the same launch file, which
/// is opened where the window has gone on to other work meanwhile.
void raiseWhenCalled(const PosixOneProgram& program, desktop::MainWindow& window,
                     const std::string& launchFile) {
  if (program.calls() < 0) return;
  auto* calls = new QSocketNotifier(program.calls(), QSocketNotifier::Read, &window);
  QObject::connect(calls, &QSocketNotifier::activated, &window, [&program, &window, launchFile] {
    program.takeCalls();
    window.setWindowState((window.windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    window.show();
    window.raise();
    window.activateWindow();
    // Where the window manager doesn't let it come by itself.
    QApplication::alert(&window);
    if (!window.showsLaunched()) window.openFile(QString::fromStdString(launchFile));
  });
}

int run(const QApplication& application) {
  const std::vector<std::string> arguments = argumentsOf(application);
  const Asked what = asked(arguments);
  std::optional<PosixOneProgram> program;
  if (!what.launchFile.empty()) {
    program.emplace(PosixOneProgram::usersOwnFolder(), launchName(arguments, what.launchFile));
    if (!program->isFirst() && program->callFirst()) return 0;
  }
  QLocale::setDefault(desktop::localeNamed(what.options.locale));
  PosixRecordFolder records(PosixRecordFolder::usersOwnPath());
  desktop::MainWindow window(what.options, nullptr, &records);
  if (!window.isUsable()) return exitEndedBySystem;
  if (program) raiseWhenCalled(*program, window, what.launchFile);
  if (!what.file.isEmpty()) window.openFile(what.file);
  window.show();
  const int status = QApplication::exec();
  // Who calls from now on begins anew, while the work here is put away.
  program.reset();
  return status;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  std::signal(SIGPIPE, SIG_IGN);
  // Needs no screen.
  const std::string about =
      aboutProgram("awizo", usage, {arguments + 1, arguments + argumentCount});
  if (!about.empty()) {
    std::cout << about;
    return 0;
  }
  desktop::setProgramStyle();
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName("awizo");
  QApplication::setDesktopFileName("awizo");
  QApplication::setWindowIcon(desktop::iconNamed("awizo"));
  // The words of Qt's own menus, such as a field's "copy" and "paste".
  QTranslator words;
  if (words.load("qtbase_ru", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&words);
  }
  try {
    return run(application);
  } catch (const BadLaunchFile&) {
    // The user has seen why.
  } catch (const BadArguments& error) {
    std::cerr << "awizo: " << error.what() << '\n' << usage;
  } catch (const std::exception& error) {
    std::cerr << "awizo: " << error.what() << '\n';
  }
  return exitBadArguments;
}
