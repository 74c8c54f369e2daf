#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/forms/form.h"
#include "support/error_of.h"
#include "support/scripted_screen.h"

namespace awizo::test {

/// A form on a scripted screen, and a record of events in the order in which they came.
class FormTest : public testing::Test {
 protected:
  ScriptedScreen face;
  Screen screen{face};
  Form form{screen, "Main"};
  std::vector<std::string> events;

  /// An event procedure that records this text.
  Event note(std::string text) {
    return [this, text = std::move(text)] { events.push_back(text); };
  }

  /// Records the events of the focus.
  void noteFocus(Control& control) {
    control.onValidate = note(control.name() + ".Validate");
    control.onLostFocus = note(control.name() + ".LostFocus");
    control.onGotFocus = note(control.name() + ".GotFocus");
  }

  std::vector<std::string> takeEvents() { return std::exchange(events, {}); }
};

/// Why the user is refused this, or "" where it isn't refused.
inline std::string refusal(const std::function<void()>& act) {
  try {
    act();
  } catch (const Refused& refused) {
    return refused.what();
  }
  return "";
}

}  // namespace awizo::test
