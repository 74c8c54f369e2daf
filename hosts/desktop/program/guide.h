#pragma once

#include <QWidget>

namespace awizo::desktop {

/// Shows the user guide in a window of its own beside `owner`.
void openGuide(QWidget& owner);

}  // namespace awizo::desktop
