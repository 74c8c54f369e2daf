#include "demo/options.h"

#include <charconv>

namespace awizo::demo {

namespace {

int parsePort(const std::string& text) {
  int port = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, port);
  if (error != std::errc{} || stop != end || port < 0 || port > 65535) {
    throw BadOption("--port takes a number from 0 to 65535, not '" + text + "'");
  }
  return port;
}

FaultSetting parseFaultOption(const std::string& text) {
  const auto setting = parseFaultSetting(text);
  if (!setting) throw BadOption("--fault takes EXCHANGE=KIND, not '" + text + "'");
  return *setting;
}

void take(Options& options, const std::string& name, const std::string& value) {
  if (name == "--port") {
    options.port = parsePort(value);
  } else if (name == "--data") {
    options.dataFolder = value;
  } else if (name == "--page") {
    options.pageFolder = value;
  } else if (name == "--posted") {
    options.postedFolder = value;
  } else if (name == "--fault") {
    options.faults.push_back(parseFaultOption(value));
  } else {
    throw BadOption("unknown option '" + name + "'");
  }
}

}  // namespace

Options parseOptions(const std::vector<std::string>& arguments) {
  Options options;
  options.dataFolder = AWIZO_DEMO_DIR "/data";
  options.pageFolder = AWIZO_DEMO_DIR "/page";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--help" || arguments[i] == "--version") {
      options.about = arguments[i];
      return options;
    }
    if (i + 1 == arguments.size()) throw BadOption("'" + arguments[i] + "' needs a value");
    take(options, arguments[i], arguments[i + 1]);
    ++i;
  }
  return options;
}

std::string optionsHelp() {
  return "usage: awizo-demo-service [OPTION VALUE]...\n"
         "  --port N               port on the loopback address; 0, the default: any free one\n"
         "  --data DIR             folder of the documents that are handed out\n"
         "  --page DIR             folder of the host page, editor.html, and of its files\n"
         "  --posted DIR           folder in which posted documents are kept; default: posted\n"
         "  --fault EXCHANGE=KIND  lets an exchange fail; may be given several times\n"
         "                         EXCHANGE: partner-info, catalogue, places, order, upload\n"
         "                         KIND: none, drop, cut, garbage, empty, status500, slow, "
         "slow:MS\n"
         "  --help                 shows this\n"
         "  --version              shows the version\n";
}

}  // namespace awizo::demo
