#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // The user's own style and platform theme would change sizes and colours.
  qputenv("QT_QPA_PLATFORMTHEME", "");
  QApplication application(count, arguments);
  QApplication::setStyle("Fusion");
  QLocale::setDefault(QLocale("ru_RU"));
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
