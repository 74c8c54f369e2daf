#pragma once

#include <QObject>

#include "desk/fault_list.h"
#include "desk/find_dialog.h"
#include "desk/line_search.h"
#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/window/line_strip.h"

namespace awizo::desktop {

/// Leads the user to lines and to what is wrong: by a text, by a scanned code typed into the table
/// of lines, by the list of faults. What it has to say is shown in the strip below the table.
class Finder : public QObject {
 public:
  /// `screenFace` shows its dialogs, which are the window's and not the control's. It belongs to
  /// the faces' window.
  Finder(const Editor& editor, FormFace& faces, ScreenFace& screenFace);

  LineStrip& strip() { return *strip_; }

  void find();
  void findAgain();
  void showFaults();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool takeKey(const QKeyEvent& key);
  void goToRow(std::optional<int> row, const QString& nothing);

  const Editor& editor_;
  FormFace& faces_;
  Screen screen_;
  FindDialog findDialog_;
  FaultList faultList_;
  ScannedCode code_;
  LineStrip* strip_;
};

}  // namespace awizo::desktop
