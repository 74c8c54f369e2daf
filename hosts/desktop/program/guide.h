#pragma once

#include <QWidget>

namespace awizo::desktop {

/// Shows the user guide beside the window, with its contents, at the chapter of this heading; at
/// its beginning where the guide has no such chapter. A window has one guide.
void openGuide(QWidget& owner, const QString& chapter = {});

}  // namespace awizo::desktop
