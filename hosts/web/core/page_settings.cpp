#include "hosts/web/core/page_settings.h"

#include "hosts/web/core/border.h"

namespace awizo::web {

namespace {

Fields question(const char* name, const std::string& file, std::string_view application,
                std::string_view section, std::string_view key, std::string_view value) {
  return {name,
          file,
          std::string(application),
          std::string(section),
          std::string(key),
          std::string(value)};
}

}  // namespace

std::string PageSettings::read(std::string_view application, std::string_view section,
                               std::string_view key, std::string_view defaultValue) {
  return askNow(question("setting", file_, application, section, key, defaultValue)).at(0);
}

void PageSettings::write(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view value) {
  checked(askNow(question("keep", file_, application, section, key, value)));
}

}  // namespace awizo::web
