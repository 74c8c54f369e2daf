#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "hosts/headless/conversation.h"
#include "hosts/headless/native/stream_lines.h"
#include "protocol/sample_forms.h"

namespace awizo::headless::test {

using protocol::Json;

/// A conversation about the sample forms. Lines are played to it one after the other, up to the end
/// of input.
class SampleConversation {
 public:
  SampleConversation() {
    conversation.watch(dialog);
    conversation.act = [this](const Json& line) { return sample.dispatcher.act(line); };
  }

  /// Shows the main form, plays the lines and returns what came back, each line as JSON.
  std::vector<Json> play(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return playText(text);
  }

  std::vector<Json> playText(const std::string& text) {
    in.clear();
    in.str(text);
    out.str("");
    if (showFirst) form.showMain();
    conversation.run();
    return output();
  }

  std::vector<Json> output() const {
    std::vector<Json> lines;
    std::istringstream text(out.str());
    for (std::string line; std::getline(text, line);) lines.push_back(Json::parse(line));
    return lines;
  }

  /// The closing line of one line.
  Json closingOf(const std::string& line) { return play({line}).back(); }

  bool showFirst = true;
  std::istringstream in;
  std::ostringstream out;
  StreamLines streams{in, out};
  Conversation conversation{streams};
  protocol::test::SampleForms sample{conversation};
  protocol::test::SampleForm& form = sample.form;
  protocol::test::SampleDialog& dialog = sample.dialog;
};

}  // namespace awizo::headless::test
