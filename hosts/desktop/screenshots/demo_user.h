#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <string>

#include "hosts/desktop/window/awizo_wysylki_widget.h"

namespace awizo::desktop {

/// A user who works with the demo's order and takes a picture of every form on the way.
class DemoUser {
 public:
  /// `documents`: the folder in which the user keeps documents.
  DemoUser(AwizoWysylkiWidget& widget, std::filesystem::path pictures, std::string documents)
      : widget_(widget), pictures_(std::move(pictures)), documents_(std::move(documents)) {}

  /// The road from the order to a packed document.
  void work();
  /// Whether every picture could be written.
  bool allTaken() const { return allTaken_; }

 private:
  /// Opens what is modal by the action and does `inside` while it is open.
  void during(const std::function<void()>& action, const std::function<void()>& inside);
  void take(const std::string& name);
  void fillHeader();
  void addPackage(int kind, const std::string& description, int parent, const std::string& picture);
  void packLine(int row, int package, const std::string& picture);
  void openDocuments();
  void showOtherForms();
  void setNumberRange();
  void showPacking();
  void showAssistants();
  void showPapers();

  AwizoWysylkiWidget& widget_;
  std::filesystem::path pictures_;
  std::string documents_;
  bool allTaken_ = true;
};

}  // namespace awizo::desktop
