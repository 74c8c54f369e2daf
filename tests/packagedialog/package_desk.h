#pragma once

#include <string>
#include <vector>

#include "packagedialog/dlg_szczegoly.h"
#include "support/test_editor.h"

namespace awizo::test {

/// The package dialog alone, loaded, with packages that can be parents.
struct PackageDesk : TestEditor {
  explicit PackageDesk(std::string_view localeName = "ru_RU") : TestEditor(localeName) {
    dialog.touch();
    offerNoParents();
  }

  DlgSzczegoly dialog{editor};

  void offerNoParents() {
    session.ParentSerials = {""};
    session.ParentDescriptions = {""};
    session.ParentLevels = {0};
  }
  /// A pallet at the top and a box on level 3, with the element that belongs to no package.
  void offerParents() {
    session.ParentSerials = {"2", "7", ""};
    session.ParentDescriptions = {"Поддон", "Коробка", ""};
    session.ParentLevels = {1, 3, 0};
  }
  /// Shows the dialog; the user acts and closes it.
  template <class Act>
  void show(Act act) {
    face.onModal([&] {
      act();
      if (dialog.shown()) dialog.btnZamknij.userPress();
    });
    dialog.showModal();
  }
  /// All fields as the dialog accepts them in adding a package.
  void fillValid() {
    dialog.AddMode = true;
    dialog.cboxPackageType.setIndex(0);
    dialog.txtPackageDesc.setText("Новая");
    dialog.cboxILNLokalizacji.setText("9520002000026");
    dialog.txtSerialNumberN.setText("106141412345678908");
  }
  void loadPlaces(std::string_view localizations) {
    session.LocalizationsLoaded = session.LocalizationsDom->loadText(
        "<dictionary-response><document-content><Document-LocalizationsCatalog>" +
        std::string(localizations) +
        "</Document-LocalizationsCatalog></document-content></dictionary-response>");
  }
  std::vector<std::string> boxes() { return describe(face.takeBoxes()); }
};

}  // namespace awizo::test
