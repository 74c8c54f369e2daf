#include "hosts/web/core/page_shared_store.h"

#include <algorithm>

#include "hosts/web/core/border.h"
#include "hosts/web/core/page_files.h"
#include "platform/at_exit.h"
#include "platform/run_time_error.h"

namespace awizo::web {

void PageSharedStore::alone(const std::function<void()>& work) {
  checked(ask({"takeTurn", folder_}));
  const AtExit end([this] { askNow({"endTurn", folder_}); });
  work();
}

std::string PageSharedStore::read(std::string_view name, std::uint64_t from) {
  try {
    std::string text = readPageFile(pathOf(name));
    text.erase(0, static_cast<std::size_t>(std::min<std::uint64_t>(from, text.size())));
    return text;
  } catch (const RunTimeError& error) {
    const auto number = error.number();
    if (number == errors::fileNotFound().number() || number == errors::pathNotFound().number()) {
      return "";
    }
    throw;
  }
}

void PageSharedStore::replace(std::string_view name, std::string_view text) {
  checked(ask({"replace", pathOf(name), std::string(text)}));
}

void PageSharedStore::append(std::string_view name, std::string_view text) {
  const auto file = continuedPageFile(pathOf(name));
  file->append(text);
  file->flush();
}

}  // namespace awizo::web
