#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "hosts/headless/conversation.h"
#include "hosts/headless/desk.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/label.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/table.h"
#include "support/memory_files.h"

namespace awizo::headless::test {

/// A main form with one control of each kind.
struct SampleForm : Form {
  explicit SampleForm(Screen& screen) : Form(screen, "Main") {}

  Label label{*this, "label", "Caption", "Heading:"};
  TextField field{*this, "field", "Number:", 5};
  Button button{*this, "button", "&Press"};
  PictureButton picture{*this, "picture", "Tip"};
  DropDownList list{*this, "list", "Choice:"};
  DatePicker date{*this, "date", makeDate(2026, 11, 21), NoValue::allowed, "Day:"};
  TimePicker time{*this, "time", TimeOfDay{10, 15, 30}, "Time:"};
  TextField count{*this, "count"};
  SpinButtons spin{*this, "spin", count};
  Table table{*this, "table", 3, 4};
  Frame frame{*this, "frame", "Around"};
};

/// A dialog with the lists of files.
struct SampleDialog : Form {
  SampleDialog(Screen& screen, Files& files)
      : Form(screen, "Dialog"),
        drives(*this, "drives", files),
        folders(*this, "folders", files),
        fileNames(*this, "files", files, ".xml"),
        close(*this, "close", "&Back") {
    setCaption("A dialog");
    close.onClick = [this] { hide(); };
    closeButton = &close;
  }

  DriveList drives;
  FolderList folders;
  FileList fileNames;
  Button close;
  int result = 7;
};

/// A desk with these forms. Lines are played to it one after the other, up to the end of input.
class SampleDesk {
 public:
  SampleDesk() {
    forms.add(form, nullptr);
    forms.add(dialog, [this] { return Json{{"Result", dialog.result}}; });
    for (const char* name : {"c:\\a", "c:\\b"}) files.putFolder(name);
  }

  /// Shows the main form, plays the lines and gives what came back, each line as JSON.
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

  /// What one line gives back last: its closing line.
  Json closingOf(const std::string& line) { return play({line}).back(); }

  bool showFirst = true;
  std::istringstream in;
  std::ostringstream out;
  Conversation conversation{in, out};
  Screen screen{conversation};
  awizo::test::MemoryFiles files;
  SampleForm form{screen};
  SampleDialog dialog{screen, files};
  FormDirectory forms{form};
  Desk desk{screen, forms};

 private:
  const bool connected_ = [this] {
    conversation.watch(dialog);
    conversation.act = [this](const Json& line) { return desk.act(line); };
    return true;
  }();
};

}  // namespace awizo::headless::test
