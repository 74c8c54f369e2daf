#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/keys.h"
#include "support/control/test_control.h"
#include "support/documents.h"

namespace awizo::test {

/// What a user types into the line dialog.
struct LineEntry {
  std::string ean = "4607000000116";
  std::string name = "Чай";
  std::string ordered{};
  std::string despatched = "5";
};

/// What a user types into the package dialog. `parent`: row of the list of parents, -1 for none.
struct PackageEntry {
  std::string description;
  int parent = -1;
  std::string serialNumber = "106141412345678908";
};

/// A user off line before an empty document, and what such a user does.
struct Desk : TestControl {
  explicit Desk(std::string_view localeName = "ru_RU", std::string_view debugLevel = "")
      : TestControl(localeName) {
    prepareFolder();
    bag.values["OnLine"] = "Off";
    bag.values["DebugLevel"] = debugLevel;
    files.put(partnerFile, partnerInfo("ООО Покупатель"));
    start();
  }

  Table& lines = form.grdPozycje;
  Table& packages = form.grdOpakowania;
  Table& totals = form.grdSuma;
  DlgDodaj& lineDialog = control.dlgDodaj;
  DlgSzczegoly& packageDialog = control.dlgSzczegoly;

  std::vector<std::string> takeBoxes() { return describe(face.takeBoxes()); }

  // On the line dialog.

  void type(const LineEntry& entry) {
    lineDialog.txtlEANProdWart.userType(entry.ean);
    lineDialog.txtNazwaProdWart.userType(entry.name);
    if (lineDialog.txtIloscZam.enabled()) lineDialog.txtIloscZam.userType(entry.ordered);
    lineDialog.txtIloscPotw.userType(entry.despatched);
  }
  void addLine(const LineEntry& entry) {
    face.onModal([this, entry] {
      type(entry);
      lineDialog.btnDodaj.userClick();
    });
    form.btnDodaj.userClick();
  }
  /// Opens the dialog for the current line; the user acts there and accepts.
  void editLine(const std::function<void()>& act) {
    face.onModal([this, act] {
      act();
      lineDialog.btnDodaj.userClick();
    });
    form.btnEdytuj.userClick();
  }
  /// The user closes the next modal form without a choice.
  void closeNextForm() {
    face.onModal([](Form& shown) { shown.userClose(); });
  }
  /// In the open line dialog: puts a quantity of the line into a package.
  void assign(int package, const std::string& quantity) {
    face.onModal([this, package, quantity] {
      control.dlgdodajPule.cboxPackages.userChoose(package);
      control.dlgdodajPule.txtQuantity.userType(quantity);
      control.dlgdodajPule.btnDodaj.userClick();
    });
    lineDialog.Command1.userClick();
  }

  // On the package dialog.

  void type(const PackageEntry& entry) {
    packageDialog.txtPackageDesc.userType(entry.description);
    if (entry.parent >= 0) packageDialog.cboxParentPackage.userChoose(entry.parent);
    packageDialog.cboxILNLokalizacji.userType("9520002000026");
    packageDialog.txtSerialNumberN.userType(entry.serialNumber);
  }
  void addPackage(const PackageEntry& entry) {
    face.onModal([this, entry] {
      type(entry);
      packageDialog.btnDodaj.userClick();
    });
    form.btnDodajOpak.userClick();
  }
  void editPackage(const std::function<void()>& act) {
    face.onModal([this, act] {
      act();
      packageDialog.btnDodaj.userClick();
    });
    form.btnEdytujOpak.userClick();
  }

  // Documents of a size that nobody would type.

  void putLines(int count) { test::putLines(editor, count); }
  void putPackages(int count, const std::function<int(int row)>& parentRow) {
    test::putPackages(editor, count, parentRow);
  }
};

}  // namespace awizo::test
