#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/file_dialog.h"
#include "platform/files.h"
#include "platform/settings.h"

namespace awizo {

// Where people keep files. Folders are classic paths, without a backslash at the end.

/// The user's folders as the machine names them; empty for one that it doesn't have.
struct UserFolders {
  std::string home;
  std::string documents;
  /// Whether the user may make files in a folder. Where it is empty, he may everywhere.
  std::function<bool(const std::string& folder)> mayWrite = {};
};

/// A place to go to at once: a folder or, where a file is named, that file in it.
struct FilePlace {
  std::string words;
  std::string folder;
  std::string file;
};

/// Where the dialog that has just come up goes by itself: its user's folder, unless it keeps one
/// already in which its user can do what it is for; empty for nowhere.
std::string proposedFolder(const DlgWczytajZapisz& dialog, Files& files, SettingsStore& settings,
                           const UserFolders& user);
/// Whether the files used last are offered: a new file has a name of its own, and a folder is no
/// file.
bool offersFiles(const DlgWczytajZapisz& dialog);
/// The user goes to the place: opens its folder, and chooses its file.
void userGoTo(DlgWczytajZapisz& dialog, const FilePlace& place);

enum class FileUse { read, write };

/// The folder used last where it is still there, else the user's documents, else the home folder,
/// as far as files can be used so there; empty where there is none of them.
std::string firstFileFolder(Files& files, SettingsStore& settings, const UserFolders& user,
                            FileUse use = FileUse::read);

/// The folder in which that of off-line work is proposed: one that the user may write to.
std::string firstOffLineParent(Files& files, const UserFolders& user);

/// The user's folders, and the files used last, the newest first, as far as they are there.
std::vector<FilePlace> filePlaces(Files& files, SettingsStore& settings, const UserFolders& user);

/// Remembers a file that the user has read or written.
void keepUsedFile(SettingsStore& settings, std::string_view path);

}  // namespace awizo
