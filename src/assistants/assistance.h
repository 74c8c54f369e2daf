#pragma once

#include <functional>
#include <string>
#include <vector>

#include "assistants/assisted_face.h"
#include "desk/number_offer.h"
#include "journal/history.h"
#include "session/awizo_wysylki.h"

namespace awizo {

/// What an assistant works with. It acts on the control's forms as the user may, and no way else.
struct Assistance {
  AssistedFace& face;
  AwizoWysylki& control;
  journal::History& history;
  NumberOffer* numbers = nullptr;  ///< null where the firm has none
};

/// Told how many of all are done, before each; answers whether to go on. May be empty.
using GoOn = std::function<bool(int done, int all)>;

/// What an assistant couldn't do, and what the control said to it.
struct NotDone {
  std::string what;
  std::string why;
  bool operator==(const NotDone&) const = default;
};

struct AssistantReport {
  int done = 0;
  int all = 0;
  bool isStopped = false;  ///< by the user
  std::vector<NotDone> notDone = {};
};

}  // namespace awizo
