#include "hosts/headless/check_program.h"

#include <ostream>
#include <stdexcept>

#include "adapters/libxml2/libxml2.h"
#include "formats/upper/checking/document_check.h"
#include "formats/upper/checking/scratch_editor.h"
#include "hosts/common/given_host.h"
#include "hosts/version.h"
#include "session/record/off_line_path.h"

namespace awizo::headless {

namespace {

/// The last line that an element's number can name; it also means all later ones.
constexpr std::int64_t lastCountedLine = 65535;

/// What a check asks of its surroundings, and what it never asks.
struct Surroundings {
  Surroundings(const Options& options, Machine& machine)
      : locale(machine.locale(localeName(options, machine))),
        page(options),
        bag(options),
        settings(machine.settings(options)),
        clock(machine.clock(options)),
        platform{.xml = xml,
                 .http = machine.http(),
                 .page = page,
                 .bag = bag,
                 .host = host,
                 .settings = *settings,
                 .files = machine.files(),
                 .clock = *clock,
                 .locale = *locale,
                 .screenFace = face,
                 .version = programVersion} {}

  Libxml2 xml;
  std::unique_ptr<Locale> locale;
  OptionsPage page;
  OptionsBag bag;
  ReportingHost host{[](std::string_view) {}};
  std::unique_ptr<SettingsStore> settings;
  std::unique_ptr<Clock> clock;
  SilentFace face;
  Platform platform;
};

std::vector<Finding> check(const Options& options, Machine& machine) {
  const std::string& file = *options.checkedFile;
  const Surroundings surroundings(options, machine);
  const Platform& platform = surroundings.platform;
  const std::string folder = keptOffLinePath(platform.settings);
  const ReaderIdentity reader = readerIdentity(platform, folder, platform.bag.read("PartnerILN"));
  try {
    return checkDocument(platform, machine.absolutePath(file), reader);
  } catch (const RunTimeError& error) {
    throw std::runtime_error(file + ": " + error.description());
  }
}

std::string lineText(std::int64_t line) {
  return "строка " + std::to_string(line) + (line == lastCountedLine ? " или дальше" : "");
}

}  // namespace

int runCheck(const Options& options, Machine& machine, std::ostream& out) {
  const std::vector<Finding> findings = check(options, machine);
  for (const Finding& finding : findings) {
    out << lineText(finding.line) << ": ";
    if (!finding.element.empty()) out << finding.element << ": ";
    out << finding.text << '\n';
  }
  out.flush();
  return findings.empty() ? exitNothingFound : exitFound;
}

}  // namespace awizo::headless
