#include "hosts/desktop/window/package_numbers.h"

#include <QBoxLayout>

#include "hosts/desktop/layouts/form_dialog.h"

namespace awizo::desktop {

PackageNumbers::PackageNumbers(const Editor& editor, DlgSzczegoly& dialog,
                               const std::string& beginning, const Clock& clock,
                               HostScreenFace& face)
    : editor_(editor),
      dialog_(dialog),
      face_(face),
      store_(beginning),
      numbers_(store_, clock),
      offer_(numbers_, editor, dialog),
      rangeDialog_(editor.screen(), numbers_) {
  // Others help in other dialogs.
  face.onModal = [this, before = face.onModal](Form& form) {
    if (before) before(form);
    if (&form == &dialog_) opened();
  };
  face.onModalEnd = [this, before = face.onModalEnd](Form& form) {
    if (before) before(form);
    if (&form == &dialog_) offer_.closed();
  };
  dialog.txtSerialNumberN.observers.add([this](const Change&) { showWords(); });
  editor.form.deeds.add([this](const Deed& deed) {
    if (deed.kind != Deed::Kind::notRead && deed.keepsDocument()) offer_.documentKept();
  });
}

void PackageNumbers::opened() {
  FormDialog& window = face_.dialog(dialog_);
  if (!words_) {
    words_ = new QLabel;
    words_->setWordWrap(true);
    auto* rows = static_cast<QBoxLayout*>(window.content().layout());
    constexpr int belowNumber = 2;
    rows->insertWidget(belowNumber, words_);
  }
  window.faces().act([this] { offer_.opened(); });
  showWords();
  // The dialog has taken its size without these words.
  window.takeMoreRoom();
}

void PackageNumbers::showWords() {
  if (!words_) return;
  const QString words = fromText(offer_.words());
  words_->setText(words);
  words_->setVisible(!words.isEmpty());
}

void PackageNumbers::showRange() {
  if (editor_.form.takesInput()) rangeDialog_.show(editor_.session.SellerILN);
}

}  // namespace awizo::desktop
