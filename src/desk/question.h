#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/screen_face.h"

namespace awizo {

/// What a user may answer to a question of the desk.
enum class Choice {
  save,
  letGo,
  goOn,
  cancel,
  wait,
  leave,
  send,
  startAfresh,
  later,
  replace,
  printed,
  notPrinted
};

/// The words on its button, "&" before the mnemonic letter.
std::string_view wordsOf(Choice choice);

/// A question before something that can't be undone. The control never asks one.
struct Question {
  std::string text = {};  ///< lines end in a carriage return and a line feed
  std::vector<Choice> choices = {};
  /// The harmless one of them, which Enter, Escape and the window frame's close choose.
  Choice harmless = Choice::cancel;
  BoxIcon icon = BoxIcon::question;
};

}  // namespace awizo
