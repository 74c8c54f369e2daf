#pragma once

#include <QIcon>
#include <QString>

namespace awizo::desktop {

/// One of the program's own icons, in the colours of the light or dark scheme that is in use. An
/// icon is an SVG file in hosts/desktop/icons; its name is the file's without the ending.
QIcon iconNamed(const QString& name);

}  // namespace awizo::desktop
