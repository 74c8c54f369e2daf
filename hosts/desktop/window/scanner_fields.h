#pragma once

#include <QLineEdit>
#include <functional>
#include <set>

#include "desk/scanned_fields.h"
#include "hosts/desktop/window/host_screen_face.h"
#include "session/awizo_wysylki.h"

namespace awizo::desktop {

/// Keeps what a scanner types before a number out of a field for numbers.
class ScannerFilter : public QObject {
 public:
  /// `keys`: what gets the keys; `edit`: where their text is shown. `number` makes the field's text
  /// of one that came at once, `type` types it. It belongs to the field's widget.
  ScannerFilter(QWidget& keys, QLineEdit& edit,
                std::function<std::string(const std::string&)> number,
                std::function<void(const std::string&)> type);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void takeEdited(const QString& text);
  void giveBack();
  bool isKeptOut(QKeyEvent& key);
  /// Whether what is typed next is all that the field will hold.
  bool isBegun() const;

  QLineEdit& edit_;
  std::function<std::string(const std::string&)> number_;
  std::function<void(const std::string&)> type_;
  ScanMarks marks_;
};

/// The dialogs' fields for what is scanned.
class ScannerFields {
 public:
  ScannerFields(AwizoWysylki& control, HostScreenFace& face);

 private:
  void prepare(Form& form, HostScreenFace& face) const;

  std::vector<ScannedField> fields_;
  std::set<const Form*> prepared_;
};

}  // namespace awizo::desktop
