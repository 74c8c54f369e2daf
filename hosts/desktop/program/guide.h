#pragma once

#include <QWidget>

namespace awizo::desktop {

/// Shows the user guide in a window of its own next to `owner`.
void openGuide(QWidget& owner);

}  // namespace awizo::desktop
