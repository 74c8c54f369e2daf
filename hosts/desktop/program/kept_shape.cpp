#include "hosts/desktop/program/kept_shape.h"

#include <QSplitter>
#include <QTableView>

#include "desk/kept_sizes.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/faces/text.h"
#include "hosts/desktop/layouts/turning_splitter.h"
#include "hosts/desktop/layouts/wrapping.h"
#include "platform/text.h"

namespace awizo::desktop {
namespace {

constexpr std::string_view windowPart = "window";  ///< width, height, whether it is maximized

/// Calls with each splitter that has a name and doesn't turn.
template <class Do>
void eachSplitter(const QWidget& part, Do&& act) {
  for (auto* splitter : part.findChildren<QSplitter*>()) {
    if (splitter->objectName().isEmpty()) continue;
    if (dynamic_cast<TurningSplitter*>(splitter) == nullptr) {
      act(*splitter, toText(splitter->objectName()));
    }
  }
}

/// Calls with each splitter that has a name and turns, once for each way, and the name of the
/// sizes.
template <class Do>
void eachWay(const QWidget& part, Do&& act) {
  for (auto* splitter : part.findChildren<QSplitter*>()) {
    auto* turning = dynamic_cast<TurningSplitter*>(splitter);
    if (turning == nullptr || turning->objectName().isEmpty()) continue;
    for (const Qt::Orientation way : {Qt::Horizontal, Qt::Vertical}) {
      act(*turning, way, keptName(*turning, way));
    }
  }
}

/// Calls with each table, and the name of its columns' widths.
template <class Do>
void eachTable(const QWidget& part, Do&& act) {
  for (const auto* view : part.findChildren<QTableView*>()) {
    if (view->window() != part.window()) continue;
    for (QObject* child : view->children()) {
      auto* table = dynamic_cast<TableFace*>(child);
      if (table != nullptr) act(*table, joined({"columns of ", table->control().name()}));
    }
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
  eachWay(part, [&](TurningSplitter& splitter, Qt::Orientation way, const std::string& name) {
    const std::vector<int> kept =
        KeptSizes(settings).of(name, static_cast<std::size_t>(splitter.count()));
    if (!kept.empty()) splitter.giveSizes(way, {kept.begin(), kept.end()});
  });
  eachTable(part, [&](TableFace& table, const std::string& name) {
    table.giveWidths(KeptSizes(settings).of(name));
  });
}

void keepParts(const QWidget& part, SettingsStore& settings) {
  eachSplitter(part, [&](QSplitter& splitter, const std::string& name) {
    const QList<int> sizes = splitter.sizes();
    KeptSizes(settings).keep(name, {sizes.begin(), sizes.end()});
  });
  eachWay(part, [&](const TurningSplitter& splitter, Qt::Orientation way, const std::string& name) {
    const QList<int> given = splitter.givenSizes(way);
    if (!given.empty()) KeptSizes(settings).keep(name, {given.begin(), given.end()});
  });
  eachTable(part, [&](TableFace& table, const std::string& name) {
    const std::vector<int> given = table.givenWidths();
    if (!given.empty()) KeptSizes(settings).keep(name, given);
  });
}

}  // namespace awizo::desktop
