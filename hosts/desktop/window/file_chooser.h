#pragma once

#include <QWidget>

#include "desk/file_places.h"
#include "formats/file_dialog.h"
#include "hosts/desktop/layouts/form_dialog.h"
#include "hosts/desktop/window/host_screen_face.h"

namespace awizo::desktop {

/// Helps the user in the file dialog as he might himself: opens the folder where he keeps files,
/// and stands above the lists as a row of places to go to.
class FileChooser : public QWidget {
 public:
  /// Puts itself into the dialog's window, which it belongs to.
  FileChooser(DlgWczytajZapisz& form, FormDialog& dialog, Files& files, SettingsStore& settings,
              UserFolders user);

  /// The dialog has come up.
  void opened();
  /// It has gone: what was chosen is remembered.
  void closed();

 private:
  void offer(const std::vector<FilePlace>& places);
  void goTo(const FilePlace& place);

  DlgWczytajZapisz& form_;
  FormDialog& dialog_;
  Files& files_;
  SettingsStore& settings_;
  UserFolders user_;
};

/// Gives every file dialog of this screen such help.
void helpToChooseFiles(HostScreenFace& face, Files& files, SettingsStore& settings);

}  // namespace awizo::desktop
