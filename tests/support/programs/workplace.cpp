#include "support/programs/workplace.h"

#include "support/files/files.h"

namespace awizo::test {

namespace fs = std::filesystem;

Workplace::Workplace() {
  fs::copy(projectFolder() / "demo/folder", folder(), fs::copy_options::recursive);
  fs::create_directory(documents());
}

}  // namespace awizo::test
