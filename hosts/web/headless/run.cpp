// Where JavaScript starts awizo-headless. Lines come and go over the border.

#include <optional>
#include <string>
#include <utility>

#include "hosts/headless/command_line.h"
#include "hosts/web/core/border.h"
#include "hosts/web/core/code_pages.h"
#include "hosts/web/headless/page_machine.h"
#include "platform/text.h"

#ifdef __wasm__
#define AWIZO_EXPORT(name) __attribute__((export_name(name)))
#else
#define AWIZO_EXPORT(name)
#endif

namespace awizo::web {

namespace {

class PageLines final : public headless::Lines {
 public:
  void writeText(std::string_view line) override { askNow({"say", joined({line, "\n"})}); }

 protected:
  std::optional<std::string> next() override {
    Fields line = ask({"line"});
    if (line.empty()) return std::nullopt;
    return std::move(line[0]);
  }
};

}  // namespace

}  // namespace awizo::web

extern "C" AWIZO_EXPORT("run") int awizoRun();

int awizoRun() {
  namespace web = awizo::web;
  web::registerCodePages();
  web::PageMachine machine;
  web::PageLines lines;
  return awizo::headless::runCommandLine(web::askNow({"arguments"}), machine, lines);
}
