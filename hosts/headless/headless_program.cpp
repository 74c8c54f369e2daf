#include "hosts/headless/headless_program.h"

#include <memory>
#include <utility>

#include "adapters/curl/curl_http.h"
#include "adapters/icu/icu_locale.h"
#include "adapters/libxml2/libxml2.h"
#include "adapters/posix/posix_files.h"
#include "hosts/common/given_host.h"
#include "hosts/common/program/machine.h"
#include "hosts/headless/conversation.h"
#include "hosts/protocol/answers.h"
#include "hosts/protocol/control_access.h"
#include "hosts/version.h"
#include "session/awizo_wysylki.h"

namespace awizo::headless {

namespace {

/// The control in its surroundings, with a client that speaks lines to it.
class Program {
 public:
  Program(const Options& options, const Outside& outside, std::istream& in, std::ostream& out);

  /// From the control's creation to its end.
  void run();

 private:
  Conversation conversation_;
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
  protocol::ControlAccess access_;
};

Program::Program(const Options& options, const Outside& outside, std::istream& in,
                 std::ostream& out)
    : conversation_(in, out),
      locale_(options.locale.empty() ? IcuLocale::environmentName() : options.locale),
      page_(options),
      bag_(options),
      host_([this](std::string_view property) {
        conversation_.emit(protocol::propertyEvent(property));
      }),
      settings_(makeSettings(options)),
      clock_(makeClock(options)),
      platform_{.xml = xml_,
                .http = outside.http,
                .page = page_,
                .bag = bag_,
                .host = host_,
                .settings = *settings_,
                .files = outside.files,
                .clock = *clock_,
                .locale = locale_,
                .screenFace = conversation_,
                .version = programVersion},
      session_(platform_),
      control_(platform_, session_),
      access_(control_, bag_) {
  for (Form* dialog : access_.dialogs()) conversation_.watch(*dialog);
  conversation_.act = [this](const protocol::Json& line) { return access_.act(line); };
}

void Program::run() {
  control_.UserControl_Initialize();
  control_.UserControl_ReadProperties();
  conversation_.run();
  access_.end();
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
