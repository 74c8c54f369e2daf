#include "hosts/headless/brought_files.h"

#include "desk/host_boxes.h"
#include "hosts/protocol/answers.h"
#include "platform/forms/form.h"

namespace awizo::headless {

BroughtPlace broughtBy(const protocol::Json& line, Files& files, std::string_view folder,
                       Conversation& conversation) {
  const std::string name = protocol::textMember(line, "name");
  const std::string from = protocol::textMember(line, "from");
  try {
    return bring(files, folder, {.name = name, .bytes = files.readAll(from)},
                 [&](const Question& question) { return conversation.ask(question); });
  } catch (const RunTimeError& error) {
    conversation.ask(fileRefusal(name, error));
    return {};
  }
}

protocol::Json mayBringEvent(const Form& form, bool may) {
  return {{"event", "mayBring"}, {"form", form.name()}, {"may", may}};
}

}  // namespace awizo::headless
