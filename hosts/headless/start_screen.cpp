#include "hosts/headless/start_screen.h"

#include <optional>
#include <utility>

#include "desk/commands.h"
#include "desk/guide_chapter.h"
#include "desk/session_start.h"
#include "desk/start_page.h"
#include "hosts/headless/brought_files.h"
#include "hosts/headless/desk_records.h"
#include "hosts/headless/quiet_surroundings.h"
#include "hosts/protocol/changes/feed_actions.h"
#include "platform/at_exit.h"
#include "session/record/off_line_path.h"

namespace awizo::headless {

Options chosenAtStart(const Options& options, Machine& machine, Conversation& conversation) {
  const QuietSurroundings surroundings(options, machine, conversation);
  StartPage page(surroundings.platform);
  protocol::FormDirectory forms(page);
  forms.add(page, nullptr);
  forms.add(page.dlgFolder, nullptr);
  protocol::Dispatcher dispatcher(page.screen(), forms);
  protocol::ChangeFeed feed(forms,
                            [&](const protocol::Json& changes) { conversation.emit(changes); });
  protocol::addFeedActions(dispatcher, forms, feed);
  dispatcher.records["commands"] = [] {
    const auto isDone = [](const Command& command) { return command.task == HostTask::showGuide; };
    return menusJson(doneMenus(startMenus(), isDone), [](HostTask) { return false; });
  };
  dispatcher.records["guideChapter"] = [&page] {
    return protocol::Json(guideChapter(page.name()));
  };
  dispatcher.clientActions["bring"] = [&](const protocol::Json& line) {
    const std::string folder = keptOffLinePath(surroundings.platform.settings);
    broughtBy(line, machine.files(), folder, conversation);
    page.refresh();
  };

  std::optional<Partner> partner;
  bool opens = false;
  page.onOffLine = [&](const Partner& chosen) { partner = chosen; };
  page.onOpen = [&](const Partner& chosen) {
    partner = chosen;
    opens = true;
  };
  conversation.act = [&](const protocol::Json& line) { return dispatcher.act(line); };
  conversation.beforeWaiting = [&] { feed.flush(); };
  const AtExit over([&] {
    conversation.act = nullptr;
    conversation.beforeWaiting = [] {};
  });
  // The folder is the page's, and a session on line the server's matter.
  for (Control* control :
       {static_cast<Control*>(&page.btnFolder), static_cast<Control*>(&page.frmOnLine),
        static_cast<Control*>(&page.lblOnLine), static_cast<Control*>(&page.btnLaunchFile)}) {
    control->setVisible(false);
  }
  conversation.emit(mayBringEvent(page, true));
  page.show("", false);
  conversation.serveUntil([&] { return partner.has_value(); });

  Options session = options;
  static_cast<GivenSession&>(session) = offLineSession(*partner);
  conversation.emit({{"event", "begins"}, {"opens", opens}});
  return session;
}

}  // namespace awizo::headless
