#include "hosts/common/options.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>

#include "hosts/common/value_texts.h"

namespace awizo {

namespace {

void takeProperty(Options& options, const std::string& entry) {
  const std::size_t equals = entry.find('=');
  const std::string name = entry.substr(0, equals);
  if (equals == std::string::npos ||
      std::ranges::find(properties::names, name) == properties::names.end()) {
    throw BadArguments("no such property: " + entry);
  }
  options.properties[name] = entry.substr(equals + 1);
}

/// "ru", "ru_RU", "ru_RU.UTF-8".
void takeLocale(Options& options, const std::string& name) {
  const bool plain = !name.empty() && std::ranges::all_of(name, [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.' || c == '@' || c == '=';
  });
  if (!plain) throw BadArguments("no such locale: " + name);
  options.locale = name;
}

void takeNow(Options& options, const std::string& text) {
  options.now = parseMoment(text);
  if (!options.now) throw BadArguments("no such moment: " + text);
}

void takeActs(Options& options, const std::string& text) {
  std::size_t acts = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, acts);
  if (read.ec != std::errc{} || read.ptr != end) throw BadArguments("no such number: " + text);
  options.acts = acts;
}

void takeOption(Options& options, const std::string& name, const std::string& value) {
  if (name == "--property") return takeProperty(options, value);
  if (name == "--locale") return takeLocale(options, value);
  if (name == "--now") return takeNow(options, value);
  if (name == "--acts") return takeActs(options, value);
  if (name == "--page-url") {
    options.pageUrl = value;
  } else if (name == "--cookie") {
    options.cookie = value;
  } else if (name == "--settings") {
    options.settingsFile = value;
  } else if (name == "--offline-path") {
    options.offLinePath = value;
  } else if (name == "--record") {
    options.recordFile = value;
  } else if (name == "--replay") {
    options.replayFile = value;
  } else if (name == "--check") {
    options.checkedFile = value;
  } else {
    throw BadArguments("no such option: " + name);
  }
}

}  // namespace

Options parseOptions(const std::vector<std::string>& arguments, std::vector<std::string>* others) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (others != nullptr && !argument.starts_with("--")) {
      others->push_back(argument);
      continue;
    }
    const std::size_t equals = argument.find('=');
    if (equals != std::string::npos) {
      takeOption(options, argument.substr(0, equals), argument.substr(equals + 1));
      continue;
    }
    if (i + 1 == arguments.size()) throw BadArguments("no value for: " + argument);
    takeOption(options, argument, arguments[++i]);
  }
  if (options.acts && !options.replayFile) throw BadArguments("--acts goes with --replay");
  return options;
}

}  // namespace awizo
