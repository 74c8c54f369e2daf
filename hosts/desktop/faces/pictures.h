#pragma once

#include <QIcon>
#include <QString>

namespace awizo::desktop {

/// One of the program's own pictures, in the colours of the light or dark scheme that is in use. A
/// picture is an SVG file in hosts/desktop/pictures; its name is the file's without the ending.
QIcon pictureNamed(const QString& name);

}  // namespace awizo::desktop
