#include <sstream>
#include <string>

#include "fuzz/targets.h"
#include "hosts/headless/headless_program.h"
#include "hosts/headless/native/native_machine.h"
#include "hosts/headless/native/stream_lines.h"
#include "hosts/protocol/values/json.h"
#include "tests/support/control/test_control.h"
#include "tests/support/fake_http.h"
#include "tests/support/memory_files.h"

namespace awizo::fuzz {

void lines(std::string_view bytes) {
  // The one procedure that makes as much room as a line asks for.
  if (bytes.find("ReDim") != bytes.npos) return;
  test::FakeHttp http;
  test::MemoryFiles files;
  files.put("c:\\VIRD\\userinfo.xml", test::TestControl::userInfo());
  files.put(test::TestControl::partnerFile, test::TestControl::partnerInfo("ООО Покупатель"));
  Options options;
  options.offLinePath = "c:\\VIRD";
  options.properties = {{"OnLine", "Off"}, {"PartnerILN", std::string(test::TestControl::buyer)}};
  options.locale = "ru_RU";
  options.now = Moment{makeDate(2026, 11, 21), {10, 15, 0}};
  std::istringstream in{std::string(bytes)};
  std::ostringstream out;
  headless::NativeMachine machine(http, files);
  headless::StreamLines conversation(in, out);
  headless::runHeadless(options, machine, conversation);
  std::istringstream replies(out.str());
  for (std::string line; std::getline(replies, line);) {
    const auto reply = protocol::Json::parse(line, nullptr, false);
    require(!reply.is_discarded() && reply.is_object(), "every line that comes back is an object");
  }
}

}  // namespace awizo::fuzz
