#include "hosts/desktop/window/file_chooser.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenu>
#include <QPointer>
#include <QStandardPaths>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#include "adapters/posix/paths/paths.h"
#include "desk/layout_words.h"
#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {
namespace {

std::string classicFolder(QStandardPaths::StandardLocation location) {
  const QString path = QStandardPaths::writableLocation(location);
  return path.isEmpty() ? "" : posix::classicPath(toText(path));
}

QToolButton* makeButton(const QString& words, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setText(words);
  button->setAccessibleName(QString(words).remove('&'));
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

/// As Qt knows them.
UserFolders userFolders() {
  return {classicFolder(QStandardPaths::HomeLocation),
          classicFolder(QStandardPaths::DocumentsLocation), [](const std::string& folder) {
            return QFileInfo(fromText(posix::systemPath(folder))).isWritable();
          }};
}

}  // namespace

FileChooser::FileChooser(DlgWczytajZapisz& form, FormDialog& dialog, Files& files,
                         SettingsStore& settings, UserFolders user)
    : QWidget(&dialog),
      form_(form),
      dialog_(dialog),
      files_(files),
      settings_(settings),
      user_(std::move(user)) {
  setObjectName("places");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  static_cast<QBoxLayout*>(dialog.layout())->insertWidget(0, this);
}

void FileChooser::opened() {
  const std::string folder = proposedFolder(form_, files_, settings_, user_);
  if (!folder.empty()) goTo({"", folder, ""});
  offer(filePlaces(files_, settings_, user_));
}

void FileChooser::closed() {
  if (!form_.chosenFile().empty()) keepUsedFile(settings_, form_.chosenFile());
}

void FileChooser::offer(const std::vector<FilePlace>& places) {
  qDeleteAll(findChildren<QToolButton*>());
  delete layout();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  auto* recent = makeButton(fromText(words::recentFiles), this);
  recent->setObjectName("recent");
  recent->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(recent);
  recent->setMenu(menu);
  for (const FilePlace& place : places) {
    if (!place.file.empty()) {
      // No letter of a file's name is a mnemonic.
      menu->addAction(fromText(place.file).replace("&", "&&"), this,
                      [this, place] { goTo(place); });
      continue;
    }
    QToolButton* button = makeButton("&" + fromText(place.words), this);
    connect(button, &QToolButton::clicked, this, [this, place] { goTo(place); });
    row->addWidget(button);
  }
  recent->setVisible(!menu->isEmpty() && offersFiles(form_));
  row->addWidget(recent);
  row->addStretch(1);
}

void FileChooser::goTo(const FilePlace& place) {
  dialog_.faces().act([&] { userGoTo(form_, place); });
}

void helpToChooseFiles(HostScreenFace& face, Files& files, SettingsStore& settings) {
  // A dialog's window may be made anew for the same form.
  const auto choosers = std::make_shared<std::map<Form*, QPointer<FileChooser>>>();
  face.onModal = [choosers, &face, &files, &settings](Form& form) {
    auto* dialog = dynamic_cast<DlgWczytajZapisz*>(&form);
    if (dialog == nullptr) return;
    QPointer<FileChooser>& chooser = (*choosers)[&form];
    const bool isNew = !chooser;
    if (isNew) {
      chooser = new FileChooser(*dialog, face.dialog(form), files, settings, userFolders());
    }
    chooser->opened();
    if (!isNew) return;
    // What stands above the lists now needs room of its own, once it is shown.
    chooser->show();
    face.dialog(form).takeMoreRoom();
  };
  face.onModalEnd = [choosers](Form& form) {
    const auto chooser = choosers->find(&form);
    if (chooser != choosers->end() && chooser->second) chooser->second->closed();
  };
}

}  // namespace awizo::desktop
