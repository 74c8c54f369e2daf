#include "support/desktop/offscreen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QTemporaryFile>
#include <cstdio>
#include <cstdlib>

namespace awizo::test {
namespace {

/// What the platform can't do without a screen isn't worth a line each time.
void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (text.startsWith("This plugin does not support")) return;
  std::fprintf(stderr, "%s\n", qPrintable(text));
  if (type == QtFatalMsg) std::abort();
}

/// Qt is told of its screens by a file.
void useScreen(QTemporaryFile& file, QSize size) {
  if (!file.open()) std::abort();
  file.write(QString(R"({"screens": [{"name": "test", "x": 0, "y": 0, "width": %1, "height": %2,
                         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                 .arg(size.width())
                 .arg(size.height())
                 .toUtf8());
  file.flush();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
}

}  // namespace

int runOffscreen(int count, char** arguments, QSize screen) {
  QTemporaryFile screens;
  useScreen(screens, screen);
  // The user's own style and platform theme would change sizes and colours.
  qputenv("QT_QPA_PLATFORMTHEME", "");
  qInstallMessageHandler(keepQuiet);
  QApplication application(count, arguments);
  QApplication::setStyle("Fusion");
  QLocale::setDefault(QLocale("ru_RU"));
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}

}  // namespace awizo::test
