#include "hosts/desktop/faces/list_face.h"

#include <QAbstractProxyModel>
#include <QEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/faces/key_codes.h"

namespace awizo::desktop {
namespace {

constexpr int usualLength = 12;  ///< of the text that a list has room for, in characters

}  // namespace

int ListRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

QVariant ListRows::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  if (!index.isValid() || index.row() >= list_.count()) return {};
  return fromText(list_.rows()[static_cast<std::size_t>(index.row())]);
}

void ListRows::changed() {
  beginResetModel();
  count_ = list_.count();
  endResetModel();
}

void ListBox::showPopup() {
  // Rows of one height aren't measured one by one.
  static_cast<QListView*>(view())->setUniformItemSizes(true);
  view()->setMinimumWidth(rowsWidth());
  QComboBox::showPopup();
}

/// As `AdjustToMinimumContentsLengthWithIcon` has it, a policy that makes the pop-up to begin with.
QSize ListBox::sizeHint() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const int icon = iconSize().width() + 4;
  const QSize text(usualLength * fontMetrics().horizontalAdvance('X') + icon,
                   std::max(fontMetrics().height(), 14) + 2);
  return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}

QSize ListBox::minimumSizeHint() const { return sizeHint(); }

bool ListBox::focusNextPrevChild(bool next) {
  onTab(next);
  return true;
}

ListFace::ListFace(FormFace& form, DropDownList& list, QWidget* parent)
    : Face(form, list, new ListBox(parent)),
      list_(list),
      box_(static_cast<ListBox*>(widget())),
      rows_(new ListRows(list, this)) {
  box_->setMaxVisibleItems(15);
  box_->setInsertPolicy(QComboBox::NoInsert);
  box_->setModel(rows_);
  box_->setFocusPolicy(Qt::TabFocus);
  box_->setAccessibleName(fromText(list_.caption()));
  box_->rowsWidth = [this] { return rowsWidth(); };
  box_->onTab = [this](bool forwards) {
    const auto byKeyboard = this->form().byKeyboard();
    act([&] { list_.userKey(keys::tab, !forwards); });
  };
  connect(box_, &QComboBox::activated, this, &ListFace::choose);
  showStyle();
}

void ListFace::showStyle() {
  const bool canType = list_.style() != ListStyle::listOnly;
  if (canType == box_->isEditable()) return;
  box_->setEditable(canType);
  box_->setFocusPolicy(Qt::TabFocus);
  if (canType) letType();
}

void ListFace::letType() {
  QLineEdit* edit = box_->lineEdit();
  watch(edit);
  // By itself the box would look what is typed up in its rows when the focus goes, and pick it.
  QObject::disconnect(edit, &QLineEdit::editingFinished, nullptr, nullptr);
  QObject::disconnect(edit, &QLineEdit::returnPressed, nullptr, nullptr);
  box_->setCompleter(nullptr);
  connect(edit, &QLineEdit::textEdited, this, &ListFace::takeTyping);
}

/// Not before the list has the focus: it costs more than the rest of the list.
void ListFace::makeProposals() {
  proposals_ = new ProposalsModel(list_, this);
  completer_ = new QCompleter(proposals_, this);
  completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  completer_->setMaxVisibleItems(12);
  completer_->setWidget(box_);
  static_cast<QListView*>(completer_->popup())->setUniformItemSizes(true);
  connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          [this](const QModelIndex& proposal) {
            const auto* shown = qobject_cast<QAbstractProxyModel*>(completer_->completionModel());
            choose(proposals_->listRow(shown->mapToSource(proposal).row()));
          });
}

void ListFace::takeTyping(const QString& text) {
  act([&] { list_.userType(toText(text)); });
  if (hasFocus() && proposals_ != nullptr) showProposals(box_->lineEdit()->text());
}

void ListFace::showProposals(const QString& typed) {
  proposals_->propose(typed);
  if (proposals_->rowCount() == 0 || !box_->isVisible()) return completer_->popup()->hide();
  QRect place = box_->rect();
  place.setWidth(std::max(place.width(), rowsWidth()));
  completer_->complete(place);
}

/// Room for the longest row, within the screen.
int ListFace::rowsWidth() const {
  const std::string* longest = nullptr;
  for (const std::string& row : list_.rows()) {
    if (longest == nullptr || row.size() > longest->size()) longest = &row;
  }
  if (longest == nullptr) return box_->width();
  const int text = box_->fontMetrics().horizontalAdvance(fromText(*longest).left(300));
  const int room = text + box_->view()->verticalScrollBar()->sizeHint().width() +
                   2 * box_->fontMetrics().averageCharWidth();
  return std::min(room, box_->screen()->availableGeometry().width() * 2 / 3);
}

void ListFace::choose(int row) {
  act([&] { list_.userChoose(row); });
}

void ListFace::showContent() {
  QLineEdit* edit = box_->lineEdit();
  const QString typed = edit == nullptr ? QString() : edit->text();
  const int caret = edit == nullptr ? 0 : edit->cursorPosition();
  if (box_->currentIndex() != list_.index()) box_->setCurrentIndex(list_.index());
  if (edit == nullptr) return;
  const QString text = fromText(list_.text());
  if (edit->text() == text && typed == text) return;
  edit->setText(text);
  // A text that didn't come by typing is read from its start.
  edit->setCursorPosition(typed == text ? caret : 0);
}

void ListFace::showChange(const Change& change) {
  if (change.aspect == Aspect::rows) {
    rows_->changed();
    if (proposals_ != nullptr) proposals_->rowsChanged();
  }
  if (change.aspect == Aspect::content) showStyle();
  Face::showChange(change);
}

bool ListFace::eventFilter(QObject* watched, QEvent* event) {
  // A long list is prepared for typing before the first key comes.
  const bool focused = event->type() == QEvent::FocusIn && watched == box_;
  if (focused && box_->isEditable()) {
    if (proposals_ == nullptr) makeProposals();
    proposals_->prepare();
  }
  return Face::eventFilter(watched, event);
}

}  // namespace awizo::desktop
