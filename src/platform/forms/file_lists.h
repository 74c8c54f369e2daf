#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/forms/control.h"

namespace awizo {

/// A list of the machine's drives, one of which is chosen.
class DriveList : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.drive_));
  }

 public:
  DriveList(Form& form, std::string name, Files& files)
      : Control(form, std::move(name), ControlKind::driveList), files_(files) {}

  std::vector<std::string> rows() const { return files_.drives(); }
  /// "c:" as written in its row; empty until one is set.
  const std::string& drive() const { return drive_; }
  /// By code; what follows the colon doesn't matter. A drive that isn't there is error 68. Raises
  /// Change if it differs.
  void setDrive(std::string_view drive);

  Event onChange;

  /// The user puts the focus here and chooses a drive. Refused: one that isn't there.
  void userChoose(std::string_view drive);

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  /// The row of this drive, case ignored; empty if there is none.
  std::string find(std::string_view drive) const;
  void assign(std::string drive);

  Files& files_;
  std::string drive_;
};

/// A list of the folders in one folder.
class FolderList : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.path_));
  }

 public:
  FolderList(Form& form, std::string name, Files& files)
      : Control(form, std::move(name), ControlKind::folderList), files_(files) {}

  /// No backslash at the end, except a root.
  const std::string& path() const { return path_; }
  /// By code; a folder that isn't there is error 76, a drive that isn't there 68. A drive alone is
  /// its root, "/" is as good as "\"; a path without a drive is on that of the present one, a
  /// name alone lies in the present one. Raises Change if it differs.
  void setPath(std::string_view path);
  /// Names of the folders in it; read again at each call.
  std::vector<std::string> rows() const;

  Event onChange;

  /// The user opens a folder by its whole path. Refused: a folder that isn't there.
  void userOpen(std::string_view path);

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  void assign(std::string path);

  Files& files_;
  std::string path_;
};

/// A list of the files in a folder that fit a pattern; at most one is selected.
class FileList : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.path_, self.rows_, self.index_));
  }

 public:
  FileList(Form& form, std::string name, Files& files, std::string_view ending)
      : Control(form, std::move(name), ControlKind::fileList), files_(files), ending_(ending) {}

  const std::string& path() const { return path_; }
  /// By code; the errors and forms of a path are those of a folder list. Reads the folder again and
  /// selects nothing.
  void setPath(std::string_view path);
  const std::vector<std::string>& rows() const { return rows_; }
  int index() const { return index_; }
  /// The selected file's name without a path, empty when nothing is selected.
  std::string fileName() const;
  /// Reads the folder again; the selected name stays selected if it is still there.
  void refresh();

  Event onClick;
  Event onDoubleClick;

  /// Selects a row, then Click. Refused: a row that isn't there.
  void userChoose(int row);
  /// Double-clicks the selected row: Click first, then the double click. Refused without one.
  void userDoubleClick();

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  Files& files_;
  std::string ending_;
  std::string path_;
  std::vector<std::string> rows_;
  int index_ = -1;
};

}  // namespace awizo
