#pragma once

#include <QSize>
#include <QString>
#include <QTemporaryFile>

namespace awizo::desktop {

/// The one screen, in pixels, of an application that shows nothing and is made afterwards. Qt is
/// told of it by the file, which stays as long as the application. Answers whether the file could
/// be written.
inline bool useOffscreenScreen(QTemporaryFile& file, QSize size) {
  if (!file.open()) return false;
  file.write(QString(R"({"screens": [{"name": "desk", "x": 0, "y": 0, "width": %1, "height": %2,
                         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                 .arg(size.width())
                 .arg(size.height())
                 .toUtf8());
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
  return file.flush();
}

}  // namespace awizo::desktop
