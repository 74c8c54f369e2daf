#include "hosts/protocol/form_directory.h"

#include <algorithm>

namespace awizo::protocol {

std::vector<Form*> FormDirectory::forms() const {
  std::vector<Form*> forms;
  for (const Entry& entry : forms_) forms.push_back(entry.form);
  return forms;
}

Form* FormDirectory::findForm(std::string_view name) const {
  const auto found = std::ranges::find(
      forms_, name, [](const Entry& entry) -> std::string_view { return entry.form->name(); });
  return found == forms_.end() ? nullptr : found->form;
}

Form& FormDirectory::form(std::string_view name) const {
  if (Form* found = findForm(name)) return *found;
  throw BadLine("There is no form \"" + std::string(name) + "\".");
}

Control& FormDirectory::control(std::string_view name) const {
  const std::size_t dot = name.find('.');
  const Form* owner = dot == std::string_view::npos ? &mainForm_ : findForm(name.substr(0, dot));
  const std::string_view field = dot == std::string_view::npos ? name : name.substr(dot + 1);
  if (owner != nullptr) {
    if (Control* found = owner->find(field)) return *found;
  }
  throw BadLine("There is no control \"" + std::string(name) + "\".");
}

std::string FormDirectory::nameOf(const Control* control) const {
  if (control == nullptr) return "";
  if (&control->form() == &mainForm_) return control->name();
  return control->form().name() + "." + control->name();
}

Json FormDirectory::membersOf(const Form& form) const {
  const auto found = std::ranges::find(forms_, &form, &Entry::form);
  return found == forms_.end() || !found->members ? Json::object() : found->members();
}

}  // namespace awizo::protocol
