#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "linedialog/dlg_dodaj.h"
#include "support/test_editor.h"

namespace awizo::test {

/// One line of a product catalogue, as the values of its elements.
struct Product {
  std::string ean;
  std::string name;
  std::string supplierCode{};
  std::string buyerCode{};
  std::string more{};  ///< further elements of Line-Item, as XML
};

inline std::string catalogueLine(const Product& product) {
  const auto element = [](const std::string& name, const std::string& value) {
    return value.empty() ? "" : "<" + name + ">" + value + "</" + name + ">";
  };
  return "<Line><Line-Item>" + element("EAN", product.ean) +
         element("ItemDescription", product.name) +
         element("SupplierItemCode", product.supplierCode) +
         element("BuyerItemCode", product.buyerCode) + product.more + "</Line-Item></Line>";
}

inline std::string catalogueOf(std::string_view lines) {
  return std::string("<Document-ProductCatalogue><ProductCatalogue-Lines>")
      .append(lines)
      .append("</ProductCatalogue-Lines></Document-ProductCatalogue>");
}

/// A package as the line dialog is offered it.
struct Package {
  std::string serial;
  std::string description;
  std::int16_t level = 1;
};

/// The line dialog with its companions, before anything has touched it.
struct LineDialog : TestEditor {
  explicit LineDialog(std::string_view localeName = "ru_RU") : TestEditor(localeName) {}

  DlgIsoCodes isoCodes{screen, session};
  DlgdodajPule quantityDialog{screen, editor.conversions};
  DlgDodaj dialog{editor, isoCodes, quantityDialog};

  void load() {
    dialog.allowLoading();
    dialog.touch();
  }
  /// Loads the dialog with a catalogue document that the start-up has fetched.
  void loadDocument(std::string_view catalogue) {
    session.ProductCatalogDom = document(catalogue);
    session.ProductCatalogLoaded = true;
    load();
  }
  void loadProducts(const std::vector<Product>& products) {
    std::string lines;
    for (const Product& product : products) lines += catalogueLine(product);
    loadDocument(catalogueOf(lines));
  }

  /// The packages of the document, as they are handed over at each opening.
  void offer(const std::vector<Package>& packages) {
    session.ParentSerials.clear();
    session.ParentDescriptions.clear();
    session.ParentLevels.clear();
    for (const Package& package : packages) {
      session.ParentSerials.push_back(package.serial);
      session.ParentDescriptions.push_back(package.description);
      session.ParentLevels.push_back(package.level);
    }
    session.ParentSerials.emplace_back();
    session.ParentDescriptions.emplace_back();
    session.ParentLevels.push_back(0);
  }

  /// Shows the dialog to a user who does this, and closes it if it is still open then.
  void show(const std::function<void()>& act) {
    face.onModal([this, act] {
      act();
      if (dialog.shown()) dialog.btnZamknij.userClick();
    });
    dialog.showModal();
  }
  /// What the user does in the small dialog that opens next.
  void inQuantityDialog(std::function<void()> act) { face.onModal(std::move(act)); }
  /// The user puts a quantity into a package of the list.
  void assign(int package, const std::string& quantity) {
    inQuantityDialog([this, package, quantity] {
      quantityDialog.cboxPackages.userChoose(package);
      quantityDialog.txtQuantity.userType(quantity);
      quantityDialog.btnDodaj.userClick();
    });
    dialog.Command1.userClick();
  }

  std::vector<std::string> takeBoxes() { return describe(face.takeBoxes()); }
  /// Name of the control that has the focus on the dialog.
  std::string focus() const { return dialog.focus() == nullptr ? "" : dialog.focus()->name(); }
};

/// A number as the locale of the test writes it; `text` has a comma.
inline std::string localNumber(const TestEditor& test, std::string text) {
  const std::size_t comma = text.find(',');
  if (comma != text.npos) text.replace(comma, 1, test.session.DecimalSeparator);
  return text;
}

}  // namespace awizo::test
