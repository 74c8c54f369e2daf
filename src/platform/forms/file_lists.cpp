#include "platform/forms/file_lists.h"

#include <algorithm>
#include <utility>

#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo {
namespace {

/// Whether a path begins with a drive: a letter and a colon.
bool namesDrive(std::string_view path) {
  const char letter = path.empty() ? ' ' : lowerLatin(path[0]);
  return path.size() >= 2 && letter >= 'a' && letter <= 'z' && path[1] == ':';
}

bool sameDrive(std::string_view left, std::string_view right) {
  return namesDrive(left) && namesDrive(right) && lowerLatin(left[0]) == lowerLatin(right[0]);
}

std::string presentDrive(std::string_view presentPath, Files& files) {
  if (namesDrive(presentPath)) return std::string(presentPath.substr(0, 2));
  const std::vector<std::string> drives = files.drives();
  return drives.empty() ? "c:" : drives.front();
}

/// A folder's path as the lists keep it: with its drive, backslashes, none at the end but a root's.
std::string folderPath(std::string_view path, std::string_view presentPath, Files& files) {
  std::string kept(path);
  std::replace(kept.begin(), kept.end(), '/', '\\');
  if (kept.starts_with('\\')) {
    kept.insert(0, presentDrive(presentPath, files));
  } else if (!kept.empty() && !namesDrive(kept) && !presentPath.empty()) {
    kept.insert(0, presentPath.ends_with('\\') ? "" : "\\").insert(0, presentPath);
  }
  while (kept.ends_with('\\')) kept.pop_back();
  if (kept.size() == 2 && namesDrive(kept)) kept += '\\';
  return kept;
}

bool driveIsThere(std::string_view path, Files& files) {
  const std::vector<std::string> drives = files.drives();
  return std::any_of(drives.begin(), drives.end(),
                     [&](const std::string& drive) { return sameDrive(drive, path); });
}

/// The kept form of a path; error 68 for a drive that isn't there, 76 for a folder.
std::string requireFolder(std::string_view path, std::string_view presentPath, Files& files) {
  std::string kept = folderPath(path, presentPath, files);
  if (namesDrive(kept) && !driveIsThere(kept, files)) throw errors::deviceUnavailable();
  if (kept.empty() || !files.folderExists(kept)) throw errors::pathNotFound();
  return kept;
}

}  // namespace

std::string DriveList::find(std::string_view drive) const {
  for (const std::string& row : rows()) {
    if (sameDrive(row, drive)) return row;
  }
  return {};
}

void DriveList::assign(std::string drive) {
  if (drive_ == drive) return;
  drive_ = std::move(drive);
  changed(Aspect::selection);
  raise(onChange);
}

void DriveList::setDrive(std::string_view drive) {
  std::string row = find(drive);
  if (row.empty()) throw errors::deviceUnavailable();
  assign(std::move(row));
}

void DriveList::userChoose(std::string_view drive) {
  requireUser();
  Acting choosing = acting(ActKind::chooseDrive, drive);
  std::string row = find(drive);
  if (row.empty()) {
    choosing.refuse();
    throw Refused(name() + " has no such drive");
  }
  if (takeUserFocus()) assign(std::move(row));
}

std::vector<std::string> FolderList::rows() const {
  return path_.empty() ? std::vector<std::string>{} : files_.folders(path_);
}

void FolderList::assign(std::string path) {
  if (path_ == path) return;
  path_ = std::move(path);
  changed(Aspect::content);
  raise(onChange);
}

void FolderList::setPath(std::string_view path) { assign(requireFolder(path, path_, files_)); }

void FolderList::userOpen(std::string_view path) {
  requireUser();
  Acting opening = acting(ActKind::openFolder, path);
  std::string kept;
  try {
    kept = requireFolder(path, path_, files_);
  } catch (const RunTimeError& error) {
    opening.refuse();
    throw Refused(name() + ": " + error.description());
  }
  if (takeUserFocus()) assign(std::move(kept));
}

void FileList::setPath(std::string_view path) {
  std::string kept = requireFolder(path, path_, files_);
  rows_ = files_.files(kept, ending_);
  path_ = std::move(kept);
  index_ = -1;
  changed(Aspect::content);
  changed(Aspect::rows);
  changed(Aspect::selection);
}

std::string FileList::fileName() const {
  return index_ < 0 ? std::string{} : rows_[static_cast<std::size_t>(index_)];
}

void FileList::refresh() {
  if (path_.empty()) return;
  const std::string selected = fileName();
  rows_ = files_.files(path_, ending_);
  const auto found = std::find(rows_.begin(), rows_.end(), selected);
  index_ = found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
  changed(Aspect::rows);
  changed(Aspect::selection);
}

void FileList::userChoose(int row) {
  requireUser();
  const int count = static_cast<int>(rows_.size());
  if (row < 0 || row >= count) throw Refused(name() + " has no such row");
  const Acting choosing = acting(ActKind::chooseRow, {}, {row});
  if (!takeUserFocus() || row >= static_cast<int>(rows_.size())) return;
  index_ = row;
  changed(Aspect::selection);
  raise(onClick);
}

void FileList::userDoubleClick() {
  requireUser();
  if (index_ < 0) throw Refused(name() + " has no row selected");
  const Acting clicking = acting(ActKind::doubleClick);
  if (!takeUserFocus()) return;
  raise(onClick);
  if (takesInput()) raise(onDoubleClick);
}

KeptPart DriveList::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void DriveList::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

KeptPart FolderList::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void FolderList::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

KeptPart FileList::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void FileList::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
