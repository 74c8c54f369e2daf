#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "hosts/protocol/changes/control_watch.h"
#include "hosts/protocol/form_directory.h"
#include "hosts/protocol/values/json.h"

namespace awizo::protocol {

/// Sends a client that mirrors forms what has changed of them. Nothing is sent before flush(),
/// which the host calls whenever the client may look: after an act, before it waits for a box's
/// answer.
///
/// 1. The observers of the models note which controls changed.
/// 2. flush() compares these with what the client holds.
/// 3. What differs goes out as one object:
///    {"event":"changes","forms":{"DlgDodaj":{"shown":true}},
///     "controls":{"txtNrAwiza":{"text":"1"},
///                 "grdPozycje":{"row":1,"lines":[{"row":1,"height":240,"cells":["1", ...]}]}}}
///    A member that isn't sent stays as it was. Of a list or table the client is sent the number of
///    rows ("count") and those rows that it shows ("lines"); it drops rows from "count" on.
class ChangeFeed {
 public:
  using Send = std::function<void(const Json& changes)>;

  /// The forms outlive the feed.
  ChangeFeed(const FormDirectory& forms, Send send);
  ~ChangeFeed();
  ChangeFeed(const ChangeFeed&) = delete;
  ChangeFeed& operator=(const ChangeFeed&) = delete;

  /// The next flush sends the client all of the form, later ones what changes. Called again for a
  /// form that it has: all is sent again.
  void subscribe(Form& form);
  void unsubscribe(const Form& form);
  /// The rows that the client shows of this list or table. Refused for a form that isn't subscribed
  /// to.
  void show(const Control& control, RowRange rows);
  void flush();

 private:
  struct FormWatch;

  const FormDirectory& forms_;
  Send send_;
  std::vector<std::unique_ptr<FormWatch>> watches_;
};

}  // namespace awizo::protocol
