#include "hosts/protocol/changes/change_feed.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "platform/forms/form.h"

namespace awizo::protocol {

namespace {

Json formFacts(const Form& form, const FormDirectory& forms) {
  Json names = Json::array();
  for (const Control* control : form.controls()) names.push_back(forms.nameOf(control));
  return {{"shown", form.shown()},
          {"caption", form.caption()},
          {"enabled", form.enabled()},
          {"focus", forms.nameOf(form.focus())},
          {"controls", std::move(names)}};
}

}  // namespace

/// A form that the client mirrors, and its controls.
struct ChangeFeed::FormWatch {
  /// Passes each change of a model on, as long as it lives.
  template <class Model>
  class Observing {
   public:
    Observing(Model& model, std::function<void(const Change&)> note)
        : model_(model), number_(model.observers.add(std::move(note))) {}
    ~Observing() { model_.observers.remove(number_); }
    Observing(const Observing&) = delete;
    Observing& operator=(const Observing&) = delete;

   private:
    Model& model_;
    int number_;
  };

  struct Watched {
    explicit Watched(Control& control)
        : watch(control),
          observing(control, [this](const Change& change) { watch.note(change); }) {}

    ControlWatch watch;
    Observing<Control> observing;
  };

  explicit FormWatch(Form& watched)
      : form(watched), observing(watched, [this](const Change&) { changed = true; }) {
    for (Control* control : form.controls()) controls.emplace_back(*control);
  }

  void takeChanges(const FormDirectory& names, Json& ofForms, Json& ofControls) {
    if (std::exchange(changed, false)) {
      Json changes = takeDifference(held, formFacts(form, names));
      if (!changes.empty()) ofForms[form.name()] = std::move(changes);
    }
    auto control = form.controls().begin();
    for (Watched& watched : controls) {
      Json changes = watched.watch.takeChanges();
      if (!changes.empty()) ofControls[names.nameOf(*control)] = std::move(changes);
      ++control;
    }
  }

  Form& form;
  Json held = Json::object();
  bool changed = true;
  Observing<Form> observing;
  std::deque<Watched> controls;
};

ChangeFeed::ChangeFeed(const FormDirectory& forms, Send send)
    : forms_(forms), send_(std::move(send)) {}

ChangeFeed::~ChangeFeed() = default;

void ChangeFeed::subscribe(Form& form) {
  unsubscribe(form);
  watches_.push_back(std::make_unique<FormWatch>(form));
}

void ChangeFeed::unsubscribe(const Form& form) {
  std::erase_if(watches_, [&](const auto& watch) { return &watch->form == &form; });
}

void ChangeFeed::show(const Control& control, RowRange rows) {
  const auto found = std::ranges::find_if(
      watches_, [&](const auto& watch) { return &watch->form == &control.form(); });
  if (found == watches_.end()) throw Refused(control.form().name() + " isn't subscribed to");
  const auto& controls = control.form().controls();
  const auto place = std::ranges::find(controls, &control) - controls.begin();
  (*found)->controls[static_cast<std::size_t>(place)].watch.show(rows);
}

void ChangeFeed::flush() {
  Json forms = Json::object();
  Json controls = Json::object();
  for (const auto& watch : watches_) watch->takeChanges(forms_, forms, controls);
  if (forms.empty() && controls.empty()) return;
  Json changes{{"event", "changes"}};
  if (!forms.empty()) changes["forms"] = std::move(forms);
  if (!controls.empty()) changes["controls"] = std::move(controls);
  send_(changes);
}

}  // namespace awizo::protocol
