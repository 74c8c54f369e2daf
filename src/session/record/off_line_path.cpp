#include "session/record/off_line_path.h"

namespace awizo {
namespace {

constexpr std::string_view application = "VIRD";
constexpr std::string_view section = "VirdActiveX";
constexpr std::string_view key = "OffLinePath";

}  // namespace

std::string keptOffLinePath(SettingsStore& settings) {
  return settings.read(application, section, key, "");
}

void keepOffLinePath(SettingsStore& settings, std::string_view path) {
  settings.write(application, section, key, path);
}

}  // namespace awizo
