#pragma once

#include "hosts/common/given_host.h"
#include "hosts/protocol/dispatcher.h"
#include "hosts/protocol/form_directory.h"
#include "hosts/protocol/values/json.h"
#include "session/awizo_wysylki.h"

namespace awizo::protocol {

/// A control as clients reach it: its forms, its state, what user and host do, its procedures. The
/// control is initialised and has read its properties before the first line; it and the bag outlive
/// this.
class ControlAccess {
 public:
  ControlAccess(AwizoWysylki& control, const OptionsBag& bag);
  ControlAccess(const ControlAccess&) = delete;
  ControlAccess& operator=(const ControlAccess&) = delete;

  /// Does what a line asks. What it returns is part of the closing line ("value", "args"). Throws
  /// BadLine, Refused or RunTimeError.
  Json act(const Json& line) { return dispatcher_.act(line); }
  const FormDirectory& forms() const { return forms_; }
  /// For what else lines may ask of the host.
  Dispatcher& dispatcher() { return dispatcher_; }
  /// A form that isn't the control's, which outlives this, is reached like those of the control.
  void add(Form& form) { forms_.add(form, nullptr); }
  /// The control's dialogs, all hidden at the start.
  std::vector<Form*> dialogs() const;
  /// Takes the control down, unless a line has done so.
  void end();

 private:
  void addForms();
  void addRecords(const OptionsBag& bag);
  void addHostActions();
  void show();
  void set(const Json& line);
  void askOffLineFolder();
  void takeDown();
  void requireNoModalForm() const;

  AwizoWysylki& control_;
  const Screen& screen_;
  FormDirectory forms_;
  Dispatcher dispatcher_;
};

}  // namespace awizo::protocol
