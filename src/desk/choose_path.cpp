#include "desk/choose_path.h"

#include <algorithm>
#include <string>

namespace awizo {
namespace {

bool find(DlgWczytajZapisz& dialog, std::string_view path) {
  const std::size_t separator = path.find_last_of("\\/");
  if (separator == path.npos) return false;
  try {
    dialog.DirList.userOpen(path.substr(0, separator));
  } catch (const Refused&) {
    return false;
  }
  const auto& names = dialog.FileList.rows();
  const auto name = std::ranges::find(names, path.substr(separator + 1));
  if (name == names.end()) return false;
  dialog.FileList.userChoose(static_cast<int>(name - names.begin()));
  return true;
}

}  // namespace

void choosePath(DlgWczytajZapisz& dialog, std::string_view path) {
  if (find(dialog, path)) {
    dialog.ImageWczytaj.userClick();
  } else {
    dialog.ImageZamknij.userClick();
  }
}

}  // namespace awizo
