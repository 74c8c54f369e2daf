// A Qt program of your own that shows the control, off line. Start it as
//   awizo-embed FOLDER
// where FOLDER holds the user's files (demo/folder, for one).
// It is built as a part of the project, of whose sources it needs the headers and the libraries:
//   cmake --preset release && cmake --build --preset release --target awizo-embed
// The Debian package holds it to be read; headers and libraries aren't in it.

#include <QApplication>

#include "adapters/memory/settings_in_memory.h"
#include "hosts/common/given_host.h"
#include "hosts/desktop/window/awizo_wysylki_widget.h"
#include "session/record/off_line_path.h"

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  QLocale::setDefault(awizo::desktop::localeNamed("ru_RU"));

  // What the host hands to the control: its properties, the page that it lives in, its settings.
  awizo::Options options;
  options.properties = {{"OnLine", "Off"}, {"PartnerILN", "9520002000019"}};
  awizo::OptionsBag bag(options);
  awizo::OptionsPage page(options);
  awizo::SettingsInMemory settings;
  if (argumentCount > 1) awizo::keepOffLinePath(settings, arguments[1]);

  awizo::desktop::AwizoWysylkiWidget control({bag, page, settings, "ru_RU"});
  control.setWindowTitle(control.property("OnLine").toString() == "Off" ? "Без связи" : "На связи");
  control.resize(1024, 700);
  control.show();
  return QApplication::exec();
}
