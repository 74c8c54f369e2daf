#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string_view>
#include <utility>

#include "demo/exchange.h"

namespace awizo::demo {

/// What goes wrong with an exchange. `drop`, `garbage`, `empty` and `status500` come instead of the
/// exchange: no order is handed out, no document is stored. `cut` and `slow` only disturb the
/// sending of a real reply.
enum class FaultKind {
  none,
  drop,       ///< the connection is closed without a byte of reply
  cut,        ///< the reply's second half never comes
  garbage,    ///< bytes that are neither XML nor text
  empty,      ///< a reply of no bytes
  status500,  ///< status 500 with a page that isn't XML
  slow,       ///< the reply is held back
};

struct Fault {
  FaultKind kind = FaultKind::none;
  /// Only for `slow`: how long the reply is held back; without it, until it is released.
  std::optional<std::chrono::milliseconds> delay;
};

struct FaultSetting {
  Exchange exchange;
  Fault fault;
};

/// Reads "EXCHANGE=KIND", where KIND is "none", "drop", "cut", "garbage", "empty", "status500",
/// "slow" or "slow:MILLISECONDS". Nothing for any other text.
std::optional<FaultSetting> parseFaultSetting(std::string_view text);

/// The faults in force, and the replies that are being held back. Safe for use from any thread.
class Faults {
 public:
  void set(const FaultSetting& setting);
  void clear();
  Fault at(Exchange exchange) const;

  /// Holds the caller back: for the fault's delay, or until release().
  void hold(const Fault& fault);
  /// Lets go all that is being held back at this moment.
  void release();
  /// Lets go all, and holds back nothing any more: the service ends.
  void releaseForGood();
  /// Waits until something is being held back, and returns how many replies are; 0 after `timeout`.
  int waitUntilHeld(std::chrono::milliseconds timeout);

 private:
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::array<Fault, allExchanges.size()> faults_;
  int held_ = 0;
  unsigned releases_ = 0;
  bool ended_ = false;
};

}  // namespace awizo::demo
