#include "formats/file_dialog.h"

#include <string>

#include "session/record/off_line_path.h"

namespace awizo {
namespace {

constexpr std::string_view reading = "&Wczytaj";
constexpr std::string_view saving = "&Zapisz";
constexpr std::string_view settingFolder = "&Ustaw";

/// Name of the folder of off-line work.
constexpr std::string_view offLineFolder = "VIRD";

std::string inFolder(const std::string& folder, std::string_view name) {
  std::string path = folder;
  if (!path.ends_with('\\')) path += '\\';
  return path.append(name);
}

/// Whether a typed text is a path of its own; on some systems paths begin with "/".
bool isWholePath(std::string_view text) {
  return text.find('\\') != text.npos || text.starts_with('/');
}

std::string_view lastName(std::string_view path) {
  const std::size_t separator = path.find_last_of("\\/");
  return separator == path.npos ? path : path.substr(separator + 1);
}

}  // namespace

DlgWczytajZapisz::DlgWczytajZapisz(Screen& screen, Files& files, SettingsStore& settings,
                                   SessionState& session)
    : Form(screen, "DlgWczytajZapisz"),
      Frame1(*this, "Frame1"),
      Drive(*this, "Drive", files),
      DirList(*this, "DirList", files),
      FileList(*this, "FileList", files, ".xml"),
      txtAwizoPlik(*this, "txtAwizoPlik"),
      lblOffLinePath(*this, "lblOffLinePath"),
      ImageWczytaj(*this, "ImageWczytaj"),
      ImageZapisz(*this, "ImageZapisz"),
      ImageZamknij(*this, "ImageZamknij"),
      btnWczytaj(*this, "btnWczytaj", reading),
      files_(files),
      settings_(settings),
      session_(session) {
  txtAwizoPlik.setText("faktura.xml");
  lblOffLinePath.setVisible(false);
  btnWczytaj.setVisible(false);
  closeButton = &ImageZamknij;
  onActivate = [this] { FileList.refresh(); };
  Drive.onChange = [this] { Drive_Change(); };
  DirList.onChange = [this] { DirList_Change(); };
  FileList.onClick = [this] { txtAwizoPlik.setText(FileList.fileName()); };
  FileList.onDoubleClick = [this] { ImageWczytaj_Click(); };
  ImageWczytaj.onClick = [this] { ImageWczytaj_Click(); };
  ImageZapisz.onClick = [this] { ImageWczytaj_Click(); };
  ImageZamknij.onClick = [this] { ImageZamknij_Click(); };
}

void DlgWczytajZapisz::touch() {
  if (loaded_) return;
  loaded_ = true;
  raise([this] { Form_Load(); });
}

void DlgWczytajZapisz::Form_Load() {
  Drive.setDrive("c:\\");
  DirList.setPath("c:\\");
  txtAwizoPlik.setText("");
}

void DlgWczytajZapisz::Drive_Change() { DirList.setPath(Drive.drive()); }

void DlgWczytajZapisz::DirList_Change() {
  FileList.setPath(DirList.path());
  lblOffLinePath.setText(inFolder(DirList.path(), offLineFolder));
}

void DlgWczytajZapisz::ImageWczytaj_Click() {
  const std::string& mode = btnWczytaj.caption();
  if (mode == reading) chooseFile();
  if (mode == saving) nameFile();
  if (mode == settingFolder) setOffLineFolder();
  hide();
}

void DlgWczytajZapisz::chooseFile() {
  const std::string name = FileList.fileName();
  if (!name.empty()) session_.LastFilePath = inFolder(DirList.path(), name);
}

void DlgWczytajZapisz::nameFile() {
  const std::string& name = txtAwizoPlik.text();
  if (name.empty()) return;
  session_.LastFilePath = isWholePath(name) ? name : inFolder(DirList.path(), name);
}

void DlgWczytajZapisz::setOffLineFolder() {
  const std::string& path = lblOffLinePath.text();
  session_.OffLinePathValue = path;
  if (lastName(path) != offLineFolder || !files_.folderExists(path)) files_.makeFolder(path);
  keepOffLinePath(settings_, path);
}

void DlgWczytajZapisz::setUp(std::string_view mode, std::string_view dialogCaption,
                             PictureButton& accepting) {
  touch();
  setCaption(dialogCaption);
  btnWczytaj.setCaption(mode);
  ImageWczytaj.setVisible(&accepting == &ImageWczytaj);
  ImageZapisz.setVisible(&accepting == &ImageZapisz);
  txtAwizoPlik.setVisible(mode == saving);
  lblOffLinePath.setVisible(mode == settingFolder);
  acceptButton = &accepting;
  session_.LastFilePath.clear();
}

bool DlgWczytajZapisz::isForReading() const { return btnWczytaj.caption() == reading; }

void DlgWczytajZapisz::setUpForReading() {
  setUp(reading, "Прочитать подтверждение отгрузки.", ImageWczytaj);
}

void DlgWczytajZapisz::setUpForSaving(std::string_view proposedName) {
  setUp(saving, "Записать подтверждение отгрузки", ImageZapisz);
  txtAwizoPlik.setText(proposedName);
}

void DlgWczytajZapisz::setUpForOffLineFolder() {
  setUp(settingFolder, "Папка для автономной работы", ImageWczytaj);
}

void askOffLineFolder(DlgWczytajZapisz& dialog) {
  dialog.setUpForOffLineFolder();
  dialog.showModal();
}

KeptPart DlgWczytajZapisz::keep(const KeptPart& earlier) const {
  return keptOf(earlier, members(*this));
}

void DlgWczytajZapisz::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
