#include "hosts/headless/headless_program.h"

#include <memory>
#include <utility>

#include "adapters/curl/curl_http.h"
#include "adapters/icu/icu_locale.h"
#include "adapters/libxml2/libxml2.h"
#include "adapters/posix/posix_files.h"
#include "formats/file_dialog.h"
#include "hosts/common/surroundings.h"
#include "hosts/headless/control_members.h"
#include "hosts/headless/conversation.h"
#include "hosts/headless/desk.h"
#include "hosts/headless/procedures/control_procedures.h"
#include "hosts/headless/session_json.h"
#include "hosts/version.h"
#include "session/awizo_wysylki.h"

namespace awizo::headless {

namespace {

/// The control in its surroundings, with what lines can do to it.
class Program {
 public:
  Program(const Options& options, const Outside& outside, std::istream& in, std::ostream& out);

  /// From the control's creation to its end.
  void run();

 private:
  void addForms();
  void addDialog(Form& dialog, FormDirectory::Members members);
  void addRecords();
  void addHostActions();
  void show();
  void set(const Json& line);
  void askOffLineFolder();
  void takeDown();
  void requireNoModalForm() const;

  Conversation conversation_;
  Screen screen_{conversation_};
  Libxml2 xml_;
  IcuLocale locale_;
  OptionsPage page_;
  OptionsBag bag_;
  ReportingHost host_;
  std::unique_ptr<SettingsStore> settings_;
  std::unique_ptr<Clock> clock_;
  Platform platform_;
  SessionState session_;
  AwizoWysylki control_;
  FormDirectory forms_;
  Desk desk_;
};

Program::Program(const Options& options, const Outside& outside, std::istream& in,
                 std::ostream& out)
    : conversation_(in, out),
      locale_(options.locale.empty() ? IcuLocale::environmentName() : options.locale),
      page_(options),
      bag_(options),
      host_([this](std::string_view property) {
        conversation_.emit({{"event", "changed"}, {"property", property}});
      }),
      settings_(makeSettings(options)),
      clock_(makeClock(options)),
      platform_{xml_,          outside.http, page_,   bag_,    host_,         *settings_,
                outside.files, *clock_,      locale_, screen_, programVersion},
      session_(platform_),
      control_(platform_, session_),
      forms_(control_.form),
      desk_(screen_, forms_) {
  addForms();
  addRecords();
  addHostActions();
  addProcedures(desk_.procedures, control_);
  conversation_.act = [this](const Json& line) { return desk_.act(line); };
}

void Program::addForms() {
  forms_.add(control_.form, [this] { return controlMembers(control_); });
  addDialog(control_.dlgDodaj, [this] { return membersOf(control_.dlgDodaj); });
  addDialog(control_.dlgdodajPule, [this] { return membersOf(control_.dlgdodajPule); });
  addDialog(control_.dlgSzczegoly, [this] { return membersOf(control_.dlgSzczegoly); });
  addDialog(control_.dlgIsoCodes, nullptr);
  addDialog(control_.dlgWczytajZapisz, nullptr);
}

void Program::addDialog(Form& dialog, FormDirectory::Members members) {
  forms_.add(dialog, std::move(members));
  conversation_.watch(dialog);
}

void Program::addRecords() {
  desk_.records["session"] = [this] { return sessionJson(session_); };
  desk_.records["control"] = [this] { return controlMembers(control_); };
  desk_.records["cursor"] = [this] { return cursorName(screen_.cursor()); };
  desk_.records["bag"] = [this] { return Json(bag_.written()); };
  desk_.records["settings"] = [this] {
    return Json{
        {"OffLinePath", settings_->read(settingApplication, settingSection, offLinePathKey, "")}};
  };
}

void Program::addHostActions() {
  desk_.hostActions["show"] = [this](const Json&) { show(); };
  desk_.hostActions["set"] = [this](const Json& line) { set(line); };
  desk_.hostActions["offlineFolder"] = [this](const Json&) { askOffLineFolder(); };
  desk_.hostActions["terminate"] = [this](const Json&) {
    requireNoModalForm();
    takeDown();
  };
}

void Program::requireNoModalForm() const {
  const Form* top = screen_.top();
  if (top != nullptr && top != &control_.form) {
    throw Refused("The form " + top->name() + " is open.");
  }
}

void Program::show() {
  if (control_.form.shown()) throw Refused("The control is shown already.");
  control_.UserControl_Show();
}

void Program::set(const Json& line) {
  const std::string property = textMember(line, "property");
  const Json& value = member(line, "value");
  const std::string text =
      value.is_string() ? textOf(value, "value") : std::to_string(integerOf(value, "value"));
  if (property == "OnLine") {
    control_.setOnLine(text);
  } else if (property == "DebugLevel") {
    control_.setDebugLevel(text);
  } else {
    throw Refused("The property \"" + property + "\" can't be set.");
  }
}

void Program::askOffLineFolder() {
  if (!control_.form.shown()) throw Refused("The control isn't shown.");
  requireNoModalForm();
  awizo::askOffLineFolder(control_.dlgWczytajZapisz);
}

void Program::takeDown() {
  desk_.ended = true;
  control_.UserControl_WriteProperties();
  control_.UserControl_Terminate();
}

void Program::run() {
  control_.UserControl_Initialize();
  control_.UserControl_ReadProperties();
  conversation_.run();
  if (!desk_.ended) takeDown();
}

}  // namespace

int runHeadless(const Options& options, std::istream& in, std::ostream& out) {
  CurlHttp http;
  PosixFiles files;
  return runHeadless(options, {http, files}, in, out);
}

int runHeadless(const Options& options, const Outside& outside, std::istream& in,
                std::ostream& out) {
  Program program(options, outside, in, out);
  try {
    program.run();
  } catch (const InputEnded&) {
    return exitInputEndedEarly;
  } catch (const ProgramEnded&) {
    return exitEndedBySystem;
  }
  return exitDone;
}

}  // namespace awizo::headless
