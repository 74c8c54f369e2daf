#pragma once

#include <unistd.h>

#include "platform/run_time_error.h"

namespace awizo::test {

/// The number of the run-time error that the work raises; 0 for none.
template <typename Work>
int errorOf(Work work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

/// The same in a process of its own, whose user is bound by permissions even when the tests run
/// as root. The number must fit an exit code.
template <typename Work>
void expectErrorForOrdinaryUser(int number, Work work) {
  EXPECT_EXIT(
      {
        constexpr unsigned nobody = 65534;
        if (geteuid() == 0 && setresuid(nobody, nobody, nobody) != 0) _exit(254);
        _exit(errorOf(work));
      },
      testing::ExitedWithCode(number), "");
}

}  // namespace awizo::test
