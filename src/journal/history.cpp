#include "journal/history.h"

#include <utility>

namespace awizo::journal {
namespace {

bool isField(const Control* control) {
  if (control == nullptr) return false;
  switch (control->kind()) {
    case ControlKind::textField:
    case ControlKind::dropDownList:
    case ControlKind::datePicker:
    case ControlKind::timePicker:
      return true;
    default:
      return false;
  }
}

bool isButton(const Control* control) {
  return control != nullptr &&
         (control->kind() == ControlKind::button || control->kind() == ControlKind::pictureButton);
}

/// Whether the document is from now on another than the one that the user could go back to.
bool endsSteps(Deed::Kind kind) {
  switch (kind) {
    case Deed::Kind::saved:
    case Deed::Kind::filled:
      return false;
    default:
      return true;
  }
}

}  // namespace

History::History(Tape& tape, AwizoWysylki& control) : tape_(tape), control_(control) {
  tape.listener = this;
  observation_ = control.form.deeds.add([this](const Deed& deed) {
    if (endsSteps(deed.kind)) isEnd_ = true;
    if (deed.kind == Deed::Kind::saved) ++writings_;
  });
}

History::~History() {
  control_.form.deeds.remove(observation_);
  tape_.listener = nullptr;
}

bool History::editIsOpen() const {
  return control_.form.txtEdycja.visible() || control_.form.txtEdycjaSuma.visible();
}

bool History::isIdle() const {
  return deeds_ == 0 && !group_ && !edit_ && !tape_.replaying() && control_.form.takesInput();
}

const StepName* History::toTakeBack() const {
  return done_.empty() || !isIdle() ? nullptr : &done_.back().from.name;
}

const StepName* History::toDoAgain() const {
  return undone_.empty() || !isIdle() ? nullptr : &undone_.back().from.name;
}

void History::takeBack() {
  if (toTakeBack() == nullptr) return;
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  returnTo(undone_.back().from.moment);
  edit_ = undone_.back().edit;
  if (onChange) onChange();
}

void History::doAgain() {
  if (toDoAgain() == nullptr) return;
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  returnTo(done_.back().to);
  if (onChange) onChange();
}

void History::returnTo(const Moment& moment) {
  field_ = nullptr;
  edit_.reset();
  last_ = moment.snapshot;
  putBack(control_, moment.snapshot);
  // A file that was written since holds another document.
  const bool pastWriting = moment.writings != writings_;
  if (pastWriting) control_.forgetKeptDocument();
  tape_.returnTo(moment.place, pastWriting);
}

History::Moment History::now() {
  last_ = snapshotOf(control_, last_);
  return {last_, tape_.place(), writings_};
}

void History::userActs(const Control* control) {
  if (deeds_++ > 0) return;
  if (control != field_) field_ = nullptr;
  const AwizoForm& form = control_.form;
  act_ = {now(),
          {.control = control, .line = form.grdPozycje.row(), .package = form.grdOpakowania.row()}};
}

void History::hostActs() {
  userActs(nullptr);
  isEnd_ = true;
}

void History::deedEnds() {
  if (--deeds_ > 0) return;
  settle();
  if (onChange) onChange();
}

void History::nameEnd(StepName& name) const {
  name.newLine = control_.form.grdPozycje.row();
  name.newPackage = control_.form.grdOpakowania.row();
}

void History::settle() {
  if (std::exchange(isEnd_, false)) return clear();
  if (group_) return;
  if (edit_) return settleEdit();
  if (editIsOpen()) edit_ = act_;
  if (!isChangedSince(act_.moment)) return;
  if (field_ != nullptr && !done_.empty()) {
    // The field goes on being changed: that is one step, or none where it is as it was.
    done_.back().to = now();
    if (!isChangedSince(done_.back().from.moment)) {
      done_.pop_back();
      field_ = nullptr;
    }
    undone_.clear();
    return;
  }
  push({act_, now(), {}});
  if (isField(act_.name.control)) field_ = act_.name.control;
}

void History::settleEdit() {
  const Beginning edit = *edit_;
  if (!editIsOpen()) {
    edit_.reset();
  } else if (isChangedSince(edit.moment)) {
    edit_ = Beginning{now(), act_.name};
  }
  if (!isChangedSince(edit.moment)) return;
  // A button does its work after it has closed the edit, which then is no step of its own.
  if (isButton(act_.name.control)) {
    push({act_, now(), edit});
  } else {
    push({edit, now(), {}});
  }
}

void History::push(Step step) {
  nameEnd(step.from.name);
  undone_.clear();
  done_.push_back(std::move(step));
  if (done_.size() > mostSteps) done_.pop_front();
}

void History::clear() {
  done_.clear();
  undone_.clear();
  edit_.reset();
  field_ = nullptr;
  // What follows in a group can be taken back up to here.
  if (group_) group_->moment = now();
}

void History::beginStep(const std::string& name) {
  stepBegins(name);
  tape_.beginStep(name);
}

void History::endStep() {
  stepEnds();
  tape_.endStep();
}

void History::stepBegins(const std::string& name) {
  if (!group_) group_ = Beginning{now(), {.text = name}};
}

void History::stepEnds() {
  if (!group_) return;
  const Beginning group = *std::exchange(group_, {});
  field_ = nullptr;
  edit_.reset();
  if (editIsOpen()) edit_ = act_;
  if (isChangedSince(group.moment)) push({group, now(), {}});
  if (onChange) onChange();
}

void History::returnedPastWriting() { control_.forgetKeptDocument(); }

void History::replayEnds() { stepEnds(); }

}  // namespace awizo::journal
