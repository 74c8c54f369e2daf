#pragma once

#include "hosts/protocol/changes/row_watch.h"
#include "hosts/protocol/values/json.h"
#include "platform/forms/control.h"

namespace awizo::protocol {

/// What a client that mirrors a control holds of it, and what must be sent to it.
class ControlWatch {
 public:
  explicit ControlWatch(const Control& control) : control_(control) {}

  void note(const Change& change);
  void show(RowRange rows);
  /// The members that are other than the client holds them, and the rows; empty for none. From then
  /// on the client holds them.
  Json takeChanges();

 private:
  /// Lists that read the disk each time aren't notified of a change there.
  bool readsAnew() const;

  const Control& control_;
  Json held_ = Json::object();
  RowWatch rows_;
  bool changed_ = true;
};

/// The members of `now` that `held` lacks or holds otherwise; `held` takes them over.
Json takeDifference(Json& held, const Json& now);

}  // namespace awizo::protocol
