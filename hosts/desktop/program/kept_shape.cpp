#include "hosts/desktop/program/kept_shape.h"

#include <QSplitter>

#include "desk/kept_sizes.h"
#include "hosts/desktop/faces/text.h"
#include "hosts/desktop/layouts/wrapping.h"

namespace awizo::desktop {
namespace {

constexpr std::string_view windowPart = "window";  ///< width, height, whether it is maximized

/// Calls with each splitter that has a name.
template <class Do>
void eachSplitter(const QWidget& part, Do&& act) {
  for (auto* splitter : part.findChildren<QSplitter*>()) {
    if (!splitter->objectName().isEmpty()) act(*splitter, toText(splitter->objectName()));
  }
}

}  // namespace

void takeKeptSize(QWidget& window, QSize usual, SettingsStore& settings) {
  const std::vector<int> kept = KeptSizes(settings).of(windowPart, 3);
  if (!kept.empty()) usual = {kept[0], kept[1]};
  // On a smaller screen the form scrolls instead of losing its edges.
  const QSize least = kept.empty() ? window.sizeHint() : window.minimumSizeHint();
  window.resize(usual.expandedTo(least).boundedTo(roomFor(window)));
  if (!kept.empty() && kept[2] != 0) window.setWindowState(Qt::WindowMaximized);
}

void keepSize(const QWidget& window, SettingsStore& settings) {
  const QSize size = window.isMaximized() ? window.normalGeometry().size() : window.size();
  KeptSizes(settings).keep(windowPart, {size.width(), size.height(), window.isMaximized() ? 1 : 0});
}

void takeKeptParts(QWidget& part, SettingsStore& settings) {
  eachSplitter(part, [&](QSplitter& splitter, const std::string& name) {
    const std::vector<int> kept =
        KeptSizes(settings).of(name, static_cast<std::size_t>(splitter.count()));
    if (!kept.empty()) splitter.setSizes({kept.begin(), kept.end()});
  });
}

void keepParts(const QWidget& part, SettingsStore& settings) {
  eachSplitter(part, [&](QSplitter& splitter, const std::string& name) {
    const QList<int> sizes = splitter.sizes();
    KeptSizes(settings).keep(name, {sizes.begin(), sizes.end()});
  });
}

}  // namespace awizo::desktop
