#include "desk/session_start.h"

#include <utility>

#include "desk/host_boxes.h"
#include "desk/layout_words.h"
#include "session/record/off_line_path.h"

namespace awizo {
namespace {

StartStep asking(MessageBox box) { return {.kind = StartStep::Kind::ask, .box = std::move(box)}; }

StartStep refusing(std::string_view why) {
  return {.kind = StartStep::Kind::refuse, .refusal = std::string(why)};
}

}  // namespace

GivenSession offLineSession(const Partner& partner) {
  GivenSession given;
  given.properties = {{std::string(properties::onLine), std::string(properties::offLine)},
                      {std::string(properties::partnerIln), partner.iln},
                      {std::string(properties::partnerName), partner.name}};
  return given;
}

SessionStart::SessionStart(const AwizoForm& form, const GivenSession& given,
                           SettingsStore& settings, const SplitAddress& split)
    : settings_(settings), agreed_(settings) {
  // Without a page's cookie the control works as off line and sends nothing.
  if (isOffLine(form.OnLine) || !given.cookie) return;
  newOrigins_ = serviceOrigins(split, given.pageUrl.value_or(""), form.PartnerURL);
  std::erase_if(newOrigins_, [this](const std::string& origin) { return agreed_.holds(origin); });
}

StartStep SessionStart::next() {
  if (refused_) return refusing(words::addressNotTrusted);
  if (!newOrigins_.empty()) return asking(newAddressQuestion(newOrigins_.front()));
  return nextForFolder();
}

StartStep SessionStart::nextForFolder() {
  if (!keptOffLinePath(settings_).empty()) return {};
  if (folderAsked_) return refusing(words::folderNotChosen);
  if (!folderAnnounced_) return asking(folderRequest());
  folderAsked_ = true;
  return {.kind = StartStep::Kind::chooseFolder};
}

void SessionStart::answer(Answer answer) {
  if (newOrigins_.empty()) {
    folderAnnounced_ = true;
  } else if (answer == Answer::yes) {
    agreed_.add(newOrigins_.front());
    newOrigins_.erase(newOrigins_.begin());
  } else {
    refused_ = true;
  }
}

}  // namespace awizo
