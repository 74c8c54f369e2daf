#include "desk/file_places.h"

#include <algorithm>

#include "desk/desk_settings.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view section = "Files";
constexpr std::string_view recentKey = "Recent";
constexpr std::string_view separator = "|";  ///< no name of a file may hold it on every system
constexpr std::size_t mostRecent = 6;

std::vector<std::string> recentFiles(SettingsStore& settings) {
  return split(settings.read(deskSettings, section, recentKey, ""), separator);
}

std::string classicPath(std::string_view path) {
  const std::string classic = replaceAll(path, "/", "\\");
  return classic.starts_with('\\') ? "c:" + classic : classic;
}

bool choosesFolder(const DlgWczytajZapisz& dialog) { return dialog.lblOffLinePath.visible(); }

/// The root keeps its backslash.
std::string folderOf(std::string_view path) {
  const std::size_t end = path.find_last_of('\\');
  if (end == path.npos) return "";
  const std::string_view folder = path.substr(0, end);
  return std::string(folder.ends_with(':') ? path.substr(0, end + 1) : folder);
}

std::string_view nameOf(std::string_view path) { return path.substr(path.find_last_of('\\') + 1); }

bool isThere(Files& files, const std::string& folder) {
  return !folder.empty() && files.folderExists(folder);
}

bool isUsable(Files& files, const UserFolders& user, const std::string& folder, FileUse use) {
  if (!isThere(files, folder)) return false;
  return use == FileUse::read || !user.mayWrite || user.mayWrite(folder);
}

bool isThere(Files& files, const std::string& folder, std::string_view name) {
  try {
    return std::ranges::count(files.files(folder, ".xml"), name) > 0;
  } catch (const RunTimeError&) {
    return false;
  }
}

}  // namespace

std::string proposedFolder(const DlgWczytajZapisz& dialog, Files& files, SettingsStore& settings,
                           const UserFolders& user) {
  const bool saves = !offersFiles(dialog) && !choosesFolder(dialog);
  const FileUse use = saves ? FileUse::write : FileUse::read;
  const std::string& kept = dialog.DirList.path();
  // Only the root of the drive is nobody's choice yet.
  if (!kept.ends_with('\\') && isUsable(files, user, kept, use)) return "";
  return choosesFolder(dialog) ? firstOffLineParent(files, user)
                               : firstFileFolder(files, settings, user, use);
}

bool offersFiles(const DlgWczytajZapisz& dialog) {
  return dialog.ImageWczytaj.visible() && !choosesFolder(dialog);
}

void userGoTo(DlgWczytajZapisz& dialog, const FilePlace& place) {
  dialog.DirList.userOpen(place.folder);
  if (place.file.empty()) return;
  const std::vector<std::string>& names = dialog.FileList.rows();
  const auto found = std::ranges::find(names, place.file);
  if (found != names.end()) dialog.FileList.userChoose(static_cast<int>(found - names.begin()));
}

std::string firstFileFolder(Files& files, SettingsStore& settings, const UserFolders& user,
                            FileUse use) {
  const std::vector<std::string> recent = recentFiles(settings);
  const std::string last = recent.empty() ? "" : folderOf(recent.front());
  for (const std::string& folder : {last, user.documents, user.home}) {
    if (isUsable(files, user, folder, use)) return folder;
  }
  return "";
}

std::string firstOffLineParent(Files& files, const UserFolders& user) {
  return isUsable(files, user, user.home, FileUse::write) ? user.home : "";
}

std::vector<FilePlace> filePlaces(Files& files, SettingsStore& settings, const UserFolders& user) {
  std::vector<FilePlace> places;
  if (isThere(files, user.documents) && user.documents != user.home) {
    places.push_back({"Документы", user.documents, ""});
  }
  if (isThere(files, user.home)) places.push_back({"Домашняя папка", user.home, ""});
  for (const std::string& path : recentFiles(settings)) {
    const std::string folder = folderOf(path);
    const std::string name(nameOf(path));
    if (isThere(files, folder, name)) places.push_back({name, folder, name});
  }
  return places;
}

void keepUsedFile(SettingsStore& settings, std::string_view path) {
  const std::string used = classicPath(path);
  std::vector<std::string> recent = recentFiles(settings);
  std::erase(recent, used);
  recent.insert(recent.begin(), used);
  recent.resize(std::min(recent.size(), mostRecent));
  std::string kept;
  for (const std::string& one : recent) {
    if (!kept.empty()) kept += separator;
    kept += one;
  }
  settings.write(deskSettings, section, recentKey, kept);
}

}  // namespace awizo
