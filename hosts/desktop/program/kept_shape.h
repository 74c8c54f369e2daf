#pragma once

#include <QSize>
#include <QWidget>

#include "platform/settings.h"

namespace awizo::desktop {

// The size of the program's window, how its splitters part it and how wide its tables' columns are,
// as the user left them. What was
// kept and doesn't fit any more is as if nothing had been kept.

/// `usual`: where nothing was kept. A window is never larger than its screen.
void takeKeptSize(QWidget& window, QSize usual, SettingsStore& settings);
/// Of a maximized window, the size that it has otherwise.
void keepSize(const QWidget& window, SettingsStore& settings);

/// All splitters in the part that have a name, and the columns of its tables.
void takeKeptParts(QWidget& part, SettingsStore& settings);
void keepParts(const QWidget& part, SettingsStore& settings);

}  // namespace awizo::desktop
