#pragma once

namespace awizo::desktop {

/// Gives the program the platform's style, in which a menu bar needs no file of an icon: for one,
/// Qt loads the readers of all kinds of images, before anything is on the screen. Called before
/// there is any window.
void setProgramStyle();

}  // namespace awizo::desktop
