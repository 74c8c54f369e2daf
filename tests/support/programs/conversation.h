#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/programs/child_process.h"

namespace awizo::test {

using Json = nlohmann::ordered_json;

/// The command that starts awizo-headless with these options, by the launcher if there is one. The
/// environment's AWIZO_HEADLESS names another program, by its whole path, that speaks the same
/// lines.
std::vector<std::string> headlessCommand(const std::vector<std::string>& options,
                                         const std::vector<std::string>& launcher = {});

/// A user who works with a running awizo-headless. Each action is a line; the conversation waits
/// until the program has done what it can, up to a box or a form that waits for the user. An action
/// that is refused fails the test, unless it was said to be.
class Conversation {
 public:
  /// Starts the program with these options; where a launcher is given, through that, which takes
  /// the program and its options as its own last arguments.
  explicit Conversation(const std::vector<std::string>& options,
                        const std::vector<std::string>& environment = {},
                        const std::vector<std::string>& launcher = {});

  // What the user does.
  void show() { act({{"do", "show"}}); }
  void click(std::string_view on) { act({{"do", "click"}, {"on", on}}); }
  void doubleClick(std::string_view on) { act({{"do", "doubleClick"}, {"on", on}}); }
  void type(std::string_view on, std::string_view text) {
    act({{"do", "type"}, {"on", on}, {"text", text}});
  }
  void choose(std::string_view on, int row) { act({{"do", "choose"}, {"on", on}, {"row", row}}); }
  /// Picks the row with this text.
  void chooseText(std::string_view on, std::string_view text);
  void setDate(std::string_view on, std::string_view isoDate) {
    act({{"do", "date"}, {"on", on}, {"value", isoDate}});
  }
  void cell(std::string_view on, int row, int column) {
    act({{"do", "cell"}, {"on", on}, {"row", row}, {"col", column}});
  }
  void key(std::string_view on, int code) { act({{"do", "key"}, {"on", on}, {"code", code}}); }
  void openFolder(std::string_view on, std::string_view path) {
    act({{"do", "path"}, {"on", on}, {"value", path}});
  }
  void close(std::string_view form) { act({{"do", "close"}, {"on", form}}); }
  void answer(std::string_view button) { act({{"answer", button}}); }
  /// Any line; its closing line must be good, now or once its boxes and forms are done with.
  void act(const Json& line);

  /// Any line, as JSON or as text; returns its own closing line.
  Json say(const Json& line);
  Json sayText(std::string_view line);
  /// Says that this is refused, and returns the error.
  std::string refused(const Json& line);

  Json get(std::string_view name);
  std::string text(std::string_view control) { return get(control)["text"]; }
  std::string caption(std::string_view control) { return get(control)["caption"]; }
  std::string cellText(std::string_view table, int row, int column) {
    return get(table)["cells"]
        .at(static_cast<std::size_t>(row))
        .at(static_cast<std::size_t>(column));
  }
  Json call(std::string_view procedure, const Json& arguments = Json::array());

  /// The box that waits for an answer, as "title|icon|text"; fails the test when none does.
  std::string openBox();
  /// Answers the boxes that come with OK or Yes, and returns them as openBox() does.
  std::vector<std::string> answerAll(std::string_view question = "Yes");
  /// Events other than boxes since the last call, as JSON.
  std::vector<Json> takeEvents();
  /// The last of these of that name; null for none.
  Json takeLast(std::string_view event);
  /// Chooses what no button does, such as "showLabels".
  void perform(std::string_view task) { act({{"do", "command"}, {"task", task}}); }

  /// Ends the input; returns the exit status.
  int finish();
  ChildProcess& program() { return program_; }

 private:
  struct Box {
    std::string text;
    bool isQuestion;
  };

  /// Sends the line and reads all that comes until the program waits again.
  void exchange(std::string_view line);
  void take(const Json& output);

  ChildProcess program_;
  int lastId_ = 0;
  std::map<int, Json> closings_;   ///< by the line's id
  std::vector<int> expectedGood_;  ///< lines whose closing line may come later
  Json unnumbered_;                ///< the last closing line without a number
  std::optional<Box> box_;         ///< the open one
  int answerId_ = 0;               ///< line that answers it
  std::vector<Json> events_;
};

}  // namespace awizo::test
