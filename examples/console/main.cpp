// A host of your own without any toolkit: it opens a despatch advice as a user would and prints
// its lines. Build it with the project, and start it as
//   awizo-console FOLDER FILE
// where FOLDER holds the user's files (demo/folder, for one) and FILE is a document of that user.

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "adapters/curl/curl_http.h"
#include "adapters/icu/icu_locale.h"
#include "adapters/libxml2/libxml2.h"
#include "adapters/posix/posix_files.h"
#include "hosts/common/given_host.h"
#include "hosts/common/machine/machine.h"
#include "hosts/version.h"
#include "session/awizo_wysylki.h"
#include "tables/columns/columns.h"

namespace {

/// The screen: boxes are printed and answered at once; the one dialog gets the file's name.
class Console : public awizo::ScreenFace {
 public:
  explicit Console(std::filesystem::path file) : file_(std::move(file)) {}

  awizo::Answer ask(const awizo::MessageBox& box) override {
    std::cout << "[" << box.title << "] " << box.text << '\n';
    return box.buttons == awizo::BoxButtons::ok ? awizo::Answer::ok : awizo::Answer::yes;
  }
  /// Acts on the form as the user does, and returns when it has hidden.
  void runModal(awizo::Form& form) override {
    auto& dialog = dynamic_cast<awizo::DlgWczytajZapisz&>(form);
    dialog.DirList.userOpen(file_.parent_path().string());
    const auto& names = dialog.FileList.rows();
    const auto found = std::ranges::find(names, file_.filename().string());
    if (found != names.end()) dialog.FileList.userChoose(static_cast<int>(found - names.begin()));
    dialog.ImageWczytaj.userClick();
  }
  void cursorChanged(awizo::Cursor) override {}
  void letEventsRun() override {}
  void endProgram() override { std::exit(1); }

 private:
  std::filesystem::path file_;
};

void printLines(const awizo::AwizoWysylki& control) {
  const awizo::Table& lines = control.form.grdPozycje;
  for (std::int16_t row = 1; row <= control.editor.session.LineCount; ++row) {
    std::cout << lines.cell(control.IndexGrdPozycje(row, awizo::GRD_POZ_EAN)) << ' '
              << lines.cell(control.IndexGrdPozycje(row, awizo::GRD_POZ_QTY_DESPATCHED)) << '\n';
  }
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) return 2;
  awizo::Options options;
  options.properties = {{"OnLine", "Off"}, {"PartnerILN", "9520002000019"}};
  options.offLinePath = std::filesystem::absolute(arguments[1]).string();

  // What the system asks of its surroundings.
  Console console(std::filesystem::absolute(arguments[2]));
  const awizo::Libxml2 xml;
  awizo::CurlHttp http;
  awizo::OptionsPage page(options);
  awizo::OptionsBag bag(options);
  awizo::ReportingHost host([](std::string_view) {});
  const auto settings = awizo::makeSettings(options);
  awizo::PosixFiles files;
  const auto clock = awizo::makeClock(options);
  const awizo::IcuLocale locale("ru_RU");
  const awizo::Platform platform{.xml = xml,
                                 .http = http,
                                 .page = page,
                                 .bag = bag,
                                 .host = host,
                                 .settings = *settings,
                                 .files = files,
                                 .clock = *clock,
                                 .locale = locale,
                                 .screenFace = console,
                                 .version = awizo::programVersion};

  // The control's life, in this order.
  awizo::SessionState session(platform);
  awizo::AwizoWysylki control(platform, session);
  control.UserControl_Initialize();
  control.UserControl_ReadProperties();
  control.UserControl_Show();
  if (!control.Enabled()) return 1;
  control.form.btnWczytaj.userClick();
  printLines(control);
  control.UserControl_WriteProperties();
  control.UserControl_Terminate();
}
