#pragma once

#include <QComboBox>
#include <QListWidget>

#include "hosts/desktop/faces/face.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/typed_search.h"

namespace awizo::desktop {

/// The drives, in a list that drops down.
class DriveFace : public Face {
 public:
  DriveFace(FormFace& form, DriveList& drives, QWidget* parent);

 protected:
  void showContent() override;
  bool takesWheel() const override { return false; }

 private:
  DriveList& drives_;
  QComboBox* box_;
};

/// The way from the drive down to the present folder, and the folders in it. A double click, Enter
/// or Right opens the one that is marked, Left the one above; on the present folder Enter is the
/// form's.
class FolderFace : public Face {
 public:
  FolderFace(FormFace& form, FolderList& folders, QWidget* parent);

 protected:
  void showContent() override;
  void showChange(const Change& change) override;
  bool pressKey(QKeyEvent& key) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool findTyped(const QString& typed);
  void readFolder();
  void open(const QListWidgetItem* item);
  void addFolder(const QString& name, const QString& path, int depth);

  FolderList& folders_;
  QListWidget* list_;
  QString shownPath_;
  TypedSearch typed_;
  int depth_ = 0;  ///< rows of the way down, the last of which is the present folder
};

/// The files of the folder; one may be selected.
class FileListFace : public Face {
 public:
  FileListFace(FormFace& form, FileList& files, QWidget* parent);

 protected:
  void showContent() override;
  bool pressKey(QKeyEvent& key) override;
  bool pressMouse(QMouseEvent& mouse) override;

 private:
  void choose(int row);

  FileList& files_;
  QListWidget* list_;
  TypedSearch typed_;
};

}  // namespace awizo::desktop
