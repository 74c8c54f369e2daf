#pragma once

#include <QWidget>
#include <memory>

#include "desk/start_page.h"
#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/window/surroundings.h"

namespace awizo::desktop {

/// The start page in a window.
class StartPageWidget : public QWidget {
 public:
  explicit StartPageWidget(const GivenParts& given, QWidget* parent = nullptr);
  ~StartPageWidget() override;

  StartPage& page() { return page_; }
  FormFace& faces() { return *faces_; }
  /// Whether the user is asked something or works in a dialog.
  bool isWorking() const { return surroundings_.face.asksUser(); }
  /// Boxes and dialogs go.
  void endWork() { surroundings_.face.end(); }
  Answer ask(const MessageBox& box) { return page_.screen().messageBox(box); }

 private:
  QWidget* makeUnfinished();
  QWidget* makeOffLine();
  QWidget* makeOnLine();
  QWidget* makeWhy();

  QWidget* content_;
  Surroundings surroundings_;
  StartPage page_;
  FormFace* faces_;
};

}  // namespace awizo::desktop
