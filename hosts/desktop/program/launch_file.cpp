#include "hosts/desktop/program/launch_file.h"

#include <QFile>

#include "hosts/desktop/faces/text.h"
#include "hosts/desktop/program/addresses.h"

namespace awizo::desktop {

GivenSession readLaunchFile(const std::string& path) {
  QFile file(fromText(path));
  if (!file.open(QIODevice::ReadOnly)) throw unreadableLaunchFile();
  const QByteArray bytes = file.read(static_cast<qint64>(largestLaunchFile) + 1);
  return parseLaunchFile({bytes.data(), static_cast<std::size_t>(bytes.size())}, splitAddress);
}

}  // namespace awizo::desktop
