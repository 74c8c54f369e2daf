#include "hosts/headless/check_program.h"

#include <filesystem>
#include <ostream>
#include <stdexcept>

#include "adapters/curl/curl_http.h"
#include "adapters/icu/icu_locale.h"
#include "adapters/libxml2/libxml2.h"
#include "adapters/posix/posix_files.h"
#include "formats/upper/checking/document_check.h"
#include "formats/upper/checking/scratch_editor.h"
#include "hosts/common/given_host.h"
#include "hosts/common/program/machine.h"
#include "hosts/version.h"
#include "session/record/off_line_path.h"

namespace awizo::headless {

namespace {

/// The last line that an element's number can name; it also means all later ones.
constexpr std::int64_t lastCountedLine = 65535;

/// What a check asks of the machine, and what it never asks.
struct Machine {
  explicit Machine(const Options& options)
      : locale(options.locale.empty() ? IcuLocale::environmentName() : options.locale),
        page(options),
        bag(options),
        settings(makeSettings(options)),
        clock(makeClock(options)) {}

  Libxml2 xml;
  IcuLocale locale;
  CurlHttp http;
  PosixFiles files;
  OptionsPage page;
  OptionsBag bag;
  ReportingHost host{[](std::string_view) {}};
  std::unique_ptr<SettingsStore> settings;
  std::unique_ptr<Clock> clock;
  SilentFace face;
  Platform platform{.xml = xml,
                    .http = http,
                    .page = page,
                    .bag = bag,
                    .host = host,
                    .settings = *settings,
                    .files = files,
                    .clock = *clock,
                    .locale = locale,
                    .screenFace = face,
                    .version = programVersion};
};

std::vector<Finding> check(const Options& options) {
  const std::string& file = *options.checkedFile;
  const Machine machine(options);
  const Platform& platform = machine.platform;
  const std::string folder = keptOffLinePath(platform.settings);
  const ReaderIdentity reader = readerIdentity(platform, folder, platform.bag.read("PartnerILN"));
  try {
    return checkDocument(platform, std::filesystem::absolute(file).string(), reader);
  } catch (const RunTimeError& error) {
    throw std::runtime_error(file + ": " + error.description());
  }
}

std::string lineText(std::int64_t line) {
  return "строка " + std::to_string(line) + (line == lastCountedLine ? " или дальше" : "");
}

}  // namespace

int runCheck(const Options& options, std::ostream& out) {
  const std::vector<Finding> findings = check(options);
  for (const Finding& finding : findings) {
    out << lineText(finding.line) << ": ";
    if (!finding.element.empty()) out << finding.element << ": ";
    out << finding.text << '\n';
  }
  out.flush();
  return findings.empty() ? exitNothingFound : exitFound;
}

}  // namespace awizo::headless
