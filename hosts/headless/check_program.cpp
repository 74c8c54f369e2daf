#include "hosts/headless/check_program.h"

#include <stdexcept>

#include "formats/upper/checking/document_check.h"
#include "formats/upper/checking/scratch_editor.h"
#include "hosts/headless/quiet_surroundings.h"
#include "platform/text.h"
#include "session/record/off_line_path.h"

namespace awizo::headless {

namespace {

/// The last line that an element's number can name; it also means all later ones.
constexpr std::int64_t lastCountedLine = 65535;

std::vector<Finding> check(const Options& options, Machine& machine) {
  const std::string& file = *options.checkedFile;
  SilentFace face;
  const QuietSurroundings surroundings(options, machine, face);
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

int runCheck(const Options& options, Machine& machine, Lines& lines) {
  const std::vector<Finding> findings = check(options, machine);
  for (const Finding& finding : findings) {
    const std::string_view colon = finding.element.empty() ? "" : ": ";
    lines.writeText(joined({lineText(finding.line), ": ", finding.element, colon, finding.text}));
  }
  return findings.empty() ? exitNothingFound : exitFound;
}

}  // namespace awizo::headless
