#pragma once

#include <string_view>

#include "platform/files.h"
#include "platform/forms/button.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_field.h"
#include "platform/settings.h"
#include "session/record/session_state.h"

namespace awizo {

/// The one dialog for choosing a file or a folder. Its mode is the caption of btnWczytaj. It
/// answers through LastFilePath, which its caller empties before showing it, and keeps its folder
/// from one use to the next.
class DlgWczytajZapisz : public Form {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.loaded_));
  }

 public:
  DlgWczytajZapisz(Screen& screen, Files& files, SettingsStore& settings, SessionState& session);

  Frame Frame1;
  DriveList Drive;
  FolderList DirList;
  awizo::FileList FileList;
  TextField txtAwizoPlik;
  TextField lblOffLinePath;  ///< the folder that the mode "&Ustaw" proposes
  PictureButton ImageWczytaj, ImageZapisz, ImageZamknij;
  Button btnWczytaj;  ///< never seen

  /// Loads the form at its first use. Every caller touches it before it sets anything.
  void touch();

  /// Whole path of the file chosen; empty for none.
  const std::string& chosenFile() const { return session_.LastFilePath; }

  /// Whether it is set up for choosing a file that is there.
  bool isForReading() const;

  // The modes. Each touches the form, sets it up and empties LastFilePath.

  /// "&Wczytaj": a file that is there is chosen.
  void setUpForReading();
  /// "&Zapisz": a file is named, in the folder shown or by its whole path.
  void setUpForSaving(std::string_view proposedName);
  /// "&Ustaw": the folder of off-line work is chosen.
  void setUpForOffLineFolder();

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  void Form_Load();
  void Drive_Change();
  void DirList_Change();
  void ImageWczytaj_Click();
  void ImageZamknij_Click() { hide(); }

  void setUp(std::string_view mode, std::string_view dialogCaption, PictureButton& accepting);
  void chooseFile();
  void nameFile();
  void setOffLineFolder();

  Files& files_;
  SettingsStore& settings_;
  SessionState& session_;
  bool loaded_ = false;
};

/// Lets the user choose the folder of off-line work; it is created where it isn't there and kept
/// in the settings.
void askOffLineFolder(DlgWczytajZapisz& dialog);

}  // namespace awizo
