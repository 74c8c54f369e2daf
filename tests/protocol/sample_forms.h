#pragma once

#include <deque>
#include <string>
#include <vector>

#include "hosts/protocol/answers.h"
#include "hosts/protocol/dispatcher.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/label.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/table.h"
#include "support/memory_files.h"
#include "support/scripted_screen.h"

namespace awizo::protocol::test {

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

/// Both forms on a screen, with what lines can do to them.
struct SampleForms {
  explicit SampleForms(ScreenFace& face) : screen(face) {
    directory.add(form, nullptr);
    directory.add(dialog, [this] { return Json{{"Result", dialog.result}}; });
    for (const char* name : {"c:\\a", "c:\\b"}) files.putFolder(name);
  }

  Screen screen;
  awizo::test::MemoryFiles files;
  SampleForm form{screen};
  SampleDialog dialog{screen, files};
  FormDirectory directory{form};
  Dispatcher dispatcher{screen, directory};
};

/// A client of these forms: what it says, and what is sent to it. While a dialog is open, its lines
/// act on the dialog.
class SampleClient {
 public:
  SampleClient() {
    face.actUnscripted = [this](Form& opened) {
      told_.push_back(formEvent(opened));
      while (opened.shown()) sayNext();
    };
  }

  /// Says the lines, on the shown main form, and returns all that was sent.
  std::vector<Json> play(const std::vector<std::string>& lines) {
    if (showFirst) form.showMain();
    told_.clear();
    lines_.assign(lines.begin(), lines.end());
    while (!lines_.empty()) sayNext();
    return told_;
  }

  Json closingOf(const std::string& line) { return play({line}).back(); }

  bool showFirst = true;
  awizo::test::ScriptedScreen face;
  SampleForms sample{face};
  SampleForm& form = sample.form;
  SampleDialog& dialog = sample.dialog;

 private:
  void sayNext() {
    const std::string line = lines_.front();
    lines_.pop_front();
    const auto act = [&](const Json& json) { return sample.dispatcher.act(json); };
    told_.push_back(Json::parse(lineText(closingLineOf(line, act))));
  }

  std::deque<std::string> lines_;
  std::vector<Json> told_;
};

}  // namespace awizo::protocol::test
