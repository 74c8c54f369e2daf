#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "hosts/protocol/values/json.h"
#include "platform/forms/form.h"

namespace awizo::protocol {

/// The control's forms and their controls by the names that lines use: a field of the main form by
/// its name, a dialog's by form and field, "DlgDodaj.btnDodaj".
class FormDirectory {
 public:
  /// Public members of a form, as an object.
  using Members = std::function<Json()>;

  explicit FormDirectory(Form& mainForm) : mainForm_(mainForm) {}

  void add(Form& form, Members members) { forms_.push_back({&form, std::move(members)}); }

  Form& mainForm() const { return mainForm_; }
  /// All of them, in the order in which they were added.
  std::vector<Form*> forms() const;
  /// The form of that name, or null.
  Form* findForm(std::string_view name) const;
  Form& form(std::string_view name) const;
  /// Throws BadLine for an unknown name.
  Control& control(std::string_view name) const;
  /// The name by which lines call the control; empty for null.
  std::string nameOf(const Control* control) const;
  Json membersOf(const Form& form) const;

 private:
  struct Entry {
    Form* form;
    Members members;
  };

  Form& mainForm_;
  std::vector<Entry> forms_;
};

}  // namespace awizo::protocol
