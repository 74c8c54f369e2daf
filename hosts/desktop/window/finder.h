#pragma once

#include <QObject>

#include "desk/line_finder.h"
#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/window/line_strip.h"

namespace awizo::desktop {

/// Hands the user's keys and commands to the finder of lines; what that has to say is shown in the
/// strip below the table.
class Finder : public QObject {
 public:
  /// It belongs to the faces' window.
  Finder(const Editor& editor, FormFace& faces);

  LineStrip& strip() { return *strip_; }
  LineFinder& rules() { return finder_; }

  /// What is scanned while this view has the focus counts as typed into a table.
  void listen(QWidget& view) { view.installEventFilter(this); }

  void find();
  void findAgain();
  void showFaults();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool takeKey(const QKeyEvent& key);

  FormFace& faces_;
  LineFinder finder_;
  LineStrip* strip_;
};

}  // namespace awizo::desktop
