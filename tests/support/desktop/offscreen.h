#pragma once

#include <QSize>

namespace awizo::test {

/// Runs all tests on Qt's platform without a screen, as if there were one of this size. Returns the
/// program's exit status.
int runOffscreen(int count, char** arguments, QSize screen);

}  // namespace awizo::test
