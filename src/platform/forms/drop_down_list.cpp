#include "platform/forms/drop_down_list.h"

#include <algorithm>
#include <utility>

#include "platform/forms/keys.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace awizo {

void DropDownList::setStyle(ListStyle style) {
  if (style_ == style) return;
  style_ = style;
  changed(Aspect::content);
}

void DropDownList::addRow(std::string_view text) {
  if (rows_.use_count() > 1) rows_ = std::make_shared<Rows>(*rows_);
  rows_->emplace_back(text);
  changed(Aspect::rows);
}

void DropDownList::setRows(std::vector<std::string> rows) {
  rows_ = std::make_shared<Rows>(std::move(rows));
  const bool fits = index_ >= 0 && index_ < count() && row(index_) == text_;
  if (!fits) index_ = -1;
  changed(Aspect::rows);
}

void DropDownList::clear() {
  rows_ = std::make_shared<Rows>();
  changed(Aspect::rows);
  become(-1, "");
}

void DropDownList::setText(std::string_view text) {
  const int row = find(text);
  if (row < 0 && !text.empty() && style_ == ListStyle::listOnly) throw errors::listValueRefused();
  become(row, text);
}

void DropDownList::setIndex(int index) {
  if (index < -1 || index >= count()) throw errors::listIndexRefused();
  if (index == -1) {
    if (index_ != -1) become(-1, "");
    return;
  }
  become(index, row(index));
  raise(onClick);
}

void DropDownList::clearSelection() { become(-1, ""); }

void DropDownList::userType(std::string_view text) {
  requireUser();
  if (style_ == ListStyle::listOnly) throw Refused(name() + " takes only its rows");
  const Acting typing = acting(ActKind::type, text);
  if (!takeUserFocus()) return;
  const std::string typed = withoutControlCharacters(text);
  // Typing the present text keeps its row, which among equal rows needn't be the first.
  if (index_ >= 0 && typed == text_ && !typed.empty()) return;
  become(typed.empty() ? -1 : find(typed), typed);
}

void DropDownList::userChoose(int row) {
  requireUser();
  if (row < -1 || row >= count()) throw Refused(name() + " has no such row");
  const Acting choosing = acting(ActKind::chooseRow, {}, {row});
  // An event procedure of the focus may have taken rows away.
  if (!takeUserFocus() || row >= count()) return;
  if (row == -1) return become(-1, "");
  become(row, this->row(row));
  raise(onClick);
}

void DropDownList::pressKey(std::int16_t code, bool shift) {
  if (!takeUserKey(code, shift)) return;
  std::int16_t character = keys::characterOf(code, shift);
  if (character != 0 && onKeyPress) raise([&] { onKeyPress(character); });
}

bool DropDownList::mayBeLeft() const {
  return style_ != ListStyle::matchRequired || text_.empty() || index_ >= 0 || find(text_) >= 0;
}

int DropDownList::find(std::string_view text) const {
  const auto found = std::find(rows_->begin(), rows_->end(), text);
  return found == rows_->end() ? -1 : static_cast<int>(found - rows_->begin());
}

void DropDownList::become(int index, std::string_view text) {
  const bool sameText = text_ == text;
  const bool sameIndex = std::exchange(index_, index) == index;
  if (!sameText) text_ = text;
  if (!sameIndex) changed(Aspect::selection);
  if (sameText) return;
  changed(Aspect::content);
  raise(onChange);
}

KeptPart DropDownList::keep(const KeptPart& earlier) const {
  return keptOf(earlier, members(*this));
}

void DropDownList::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
