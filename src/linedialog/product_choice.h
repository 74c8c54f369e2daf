#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/forms/drop_down_list.h"
#include "platform/forms/text_field.h"
#include "session/record/work.h"

namespace awizo {

class DlgDodaj;

/// Keeps the line dialog's four linked lists on one product. A change of one list leads to the
/// others, whose change events run nested in it: the lists of codes lead to the name, the name to
/// the EAN, and from the EAN's catalogue line the rest is filled.
class ProductChoice {
 public:
  ProductChoice(Work& work, DlgDodaj& dialog) : work_(work), dialog_(dialog) {}

  // What the lists' Change events do.
  void cboxEANProd_Change();
  void cboxKodAPP_Change();
  void cboxKodSprzed_Change();
  void cboxNazwaProd_Change();

  /// Fills the line's fields from a row of the EAN list; a negative index empties them.
  void setFieldsValues(int index);

  std::int16_t ProductChangeSource = 0;  ///< the list at which a chain of changes began, 0 for none

 private:
  void followList(DropDownList& list, std::int16_t mark, TextField& field,
                  const std::function<void()>& onward);
  /// Sets the text of the next list of a chain; error 28 where that led into an endless one.
  void lead(DropDownList& list, const std::string& text);
  void takeProduct(std::size_t line);
  void forgetProduct();

  Work& work_;
  DlgDodaj& dialog_;
  bool inChain_ = false;         ///< a change event of a linked list is running
  bool chainIsEndless_ = false;  ///< the chain is breaking off up to its first event
};

}  // namespace awizo
