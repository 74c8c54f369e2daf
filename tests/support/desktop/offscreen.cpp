#include "support/desktop/offscreen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QTemporaryFile>
#include <cstdio>
#include <cstdlib>

#include "hosts/desktop/screenshots/offscreen_screen.h"

namespace awizo::test {
namespace {

/// What the platform can't do without a screen isn't worth a line each time.
void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (text.startsWith("This plugin does not support")) return;
  std::fprintf(stderr, "%s\n", qPrintable(text));
  if (type == QtFatalMsg) std::abort();
}

}  // namespace

int runOffscreen(int count, char** arguments, QSize screen) {
  QTemporaryFile screens;
  if (!desktop::useOffscreenScreen(screens, screen)) std::abort();
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
