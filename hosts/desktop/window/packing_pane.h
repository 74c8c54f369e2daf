#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <array>
#include <functional>
#include <set>

#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/window/packing_models.h"
#include "hosts/desktop/window/waiting.h"

namespace awizo::desktop {

/// What lies where, beside the document: the lines with what of them is packed, and the packages as
/// a tree. It is made again of the tables once after all that has changed them in one event, and
/// only while it is seen and no work lasts. The user puts the rest of the marked lines into a
/// package by a key or by dragging. It belongs to its window, which goes before the editor.
class PackingPane : public QWidget {
 public:
  using PackRest = std::function<void(const std::vector<int>& lines, int package)>;

  PackingPane(const Editor& editor, FormFace& faces, Waiting& waiting, PackRest packRest);
  ~PackingPane() override;

  /// Comes with the focus; where it has the focus already, it goes.
  void toggle();
  /// While the user is here, the package that is current here is made the document's own current
  /// one.
  void standOnItsPackage();
  /// It came or went. May be empty.
  std::function<void(bool shown)> onToggle;

  QTreeView* lines() const { return lines_; }
  QTreeView* packages() const { return packages_; }
  QCheckBox* onlyRest() const { return onlyRest_; }
  QLabel* summary() const { return summary_; }
  QPushButton* packButton() const { return packButton_; }
  /// Between lines and packages.
  QSplitter* splitter() const { return splitter_; }

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeViews();
  void layOut();
  void connectViews();
  void follow(const Change& change);
  void refreshLater();
  void refresh();
  void showLines();
  void showPackages();
  QModelIndex seen(const QModelIndex& place) const;
  bool markCurrentLine(int key);
  void focusDocument();
  void goTo(Table& table, int row);
  void goToLine();
  void goToPlace();
  void packMarked();
  void pack(const std::vector<int>& lines, int package);
  std::vector<int> markedLines() const;
  void showStates();

  const Editor& editor_;
  FormFace& faces_;
  Waiting& waiting_;
  PackRest packRest_;
  PackingLinesModel* linesModel_;
  PackingPlacesModel* packagesModel_;
  QSplitter* splitter_;
  QLabel* summary_;
  QCheckBox* onlyRest_;
  QTreeView* lines_;
  QTreeView* packages_;
  QPushButton* packButton_;
  PackingOverview overview_;
  std::set<std::string> closed_;       ///< serials of the packages that the user has closed
  std::array<int, 3> observations_{};  ///< of lines, packages and waiting
  bool stale_ = true;
  bool linesWent_ = false;  ///< all of them, since the last showing
  bool due_ = false;
  bool isShowing_ = false;
};

}  // namespace awizo::desktop
