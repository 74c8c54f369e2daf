#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QCompleter>

#include "hosts/desktop/faces/face.h"
#include "hosts/desktop/faces/proposals_model.h"
#include "platform/forms/drop_down_list.h"

namespace awizo::desktop {

/// The rows of a drop-down list, read from the model as they are asked for.
class ListRows : public QAbstractListModel {
 public:
  ListRows(const DropDownList& list, QObject* parent)
      : QAbstractListModel(parent), list_(list), count_(list.count()) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  void changed();

 private:
  const DropDownList& list_;
  int count_;  ///< as last reported to the views, which must not see an unreported change
};

/// The widget of a drop-down list: a pop-up wide enough for its rows, and Tab left to the face.
class ListBox : public QComboBox {
 public:
  using QComboBox::QComboBox;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  void showPopup() override;
  std::function<void(bool forwards)> onTab;
  std::function<int()> rowsWidth;

 protected:
  bool focusNextPrevChild(bool next) override;
};

/// A drop-down list. One that can be typed in proposes the rows that hold what is typed; text and
/// index become a proposal's only when it is picked.
class ListFace : public Face {
 public:
  ListFace(FormFace& form, DropDownList& list, QWidget* parent);

 protected:
  void showContent() override;
  void showChange(const Change& change) override;
  bool takesWheel() const override { return false; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showStyle();
  void letType();
  void makeProposals();
  void takeTyping(const QString& text);
  void showProposals(const QString& typed);
  void choose(int row);
  int rowsWidth() const;

  DropDownList& list_;
  ListBox* box_;
  ListRows* rows_;
  ProposalsModel* proposals_ = nullptr;  ///< made when the list first has the focus, as the next
  QCompleter* completer_ = nullptr;
};

}  // namespace awizo::desktop
