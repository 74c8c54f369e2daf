#pragma once

#include <QAbstractListModel>
#include <QString>

#include "platform/forms/proposals.h"

namespace awizo::desktop {

/// What a list proposes for a typed text, as Qt's completer reads it.
class ProposalsModel : public QAbstractListModel {
 public:
  ProposalsModel(const DropDownList& list, QObject* parent);

  void rowsChanged();
  void prepare() { proposals_.prepare(); }
  void propose(const QString& typed);
  /// The list's row of a proposal.
  int listRow(int proposal) const { return proposals_.rows()[static_cast<std::size_t>(proposal)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const DropDownList& list_;
  Proposals proposals_;
};

}  // namespace awizo::desktop
