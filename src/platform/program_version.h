#pragma once

namespace awizo {

struct ProgramVersion {
  int major = 0;
  int minor = 0;
  int revision = 0;
};

}  // namespace awizo
