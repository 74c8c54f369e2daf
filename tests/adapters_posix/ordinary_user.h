#pragma once

#include <unistd.h>

#include "support/error_of.h"

namespace awizo::test {

/// The same in a process of its own, whose user is bound by permissions even when the tests run
/// as root. The number must fit an exit code.
template <typename Work>
void expectErrorForOrdinaryUser(int number, Work work) {
  EXPECT_EXIT(
      {
        constexpr unsigned nobody = 65534;
        if (geteuid() == 0 && setresuid(nobody, nobody, nobody) != 0) _exit(254);
        _exit(errorNumberOf(work));
      },
      testing::ExitedWithCode(number), "");
}

}  // namespace awizo::test
