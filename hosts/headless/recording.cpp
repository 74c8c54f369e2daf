#include "hosts/headless/recording.h"

#include "hosts/common/program/recorded_options.h"
#include "journal/record_file.h"
#include "journal/texts_beside.h"
#include "platform/record_folder.h"
#include "platform/run_time_error.h"

namespace awizo::headless {

journal::RecordedSession sessionToReplay(const Options& options, Machine& machine) {
  if (!options.replayFile) return {};
  try {
    const std::string bytes = machine.readFile(*options.replayFile);
    journal::RecordedSession session = options.acts ? journal::recordedSession(bytes, *options.acts)
                                                    : journal::recordedSession(bytes);
    // Where one is missing, the replay ends and says so.
    journal::fetchBeside(session.records, [&](const std::string& name) {
      return machine.readFile(pathBeside(*options.replayFile, name));
    });
    return session;
  } catch (const RunTimeError& error) {
    const bool noRecord = error.number() == errors::typeMismatch().number();
    throw BadArguments(*options.replayFile + ": " +
                       (noRecord ? "this is no record of a session" : error.description()));
  }
}

std::unique_ptr<GrowingFile> newRecord(const Options& options, const std::string& localeName,
                                       Machine& machine) {
  if (!options.recordFile) return nullptr;
  try {
    std::unique_ptr<GrowingFile> file = machine.newFile(*options.recordFile);
    file->append(journal::fileBeginning() +
                 journal::framed(journal::headerRecord(headerOf(options, localeName))));
    return file;
  } catch (const RunTimeError& error) {
    throw BadArguments(*options.recordFile + ": " + error.description());
  }
}

std::vector<std::string> hostActOf(const protocol::Json& line) {
  if (line.contains("call")) {
    protocol::Json call{{"call", line["call"]}};
    if (line.contains("args")) call["args"] = line["args"];
    return {"call", call.dump()};
  }
  const auto text = [&](const char* name) {
    const auto found = line.find(name);
    if (found == line.end()) return std::string();
    return found->is_string() ? found->get<std::string>() : found->dump();
  };
  return {text("do"), text("property"), text("value")};
}

protocol::Json lineOf(const std::vector<std::string>& hostAct) {
  if (hostAct.at(0) == "call") return protocol::parseLine(hostAct.at(1));
  protocol::Json line{{"do", hostAct.at(0)}};
  if (hostAct.size() > 2 && !hostAct[1].empty()) {
    line["property"] = hostAct[1];
    line["value"] = hostAct[2];
  }
  return line;
}

}  // namespace awizo::headless
