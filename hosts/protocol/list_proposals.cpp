#include "hosts/protocol/list_proposals.h"

#include <string>
#include <utility>

namespace awizo::protocol {

/// A list in which its user has typed.
class ListProposals::Watched {
 public:
  Watched(DropDownList& list, const Locale& locale)
      : proposals(list, [&locale](std::string_view text) { return locale.lower(text); }),
        list_(list),
        observation_(list.observers.add([this](const Change& change) {
          if (change.aspect == Aspect::rows) proposals.rowsChanged();
        })) {}
  ~Watched() { list_.observers.remove(observation_); }
  Watched(const Watched&) = delete;
  Watched& operator=(const Watched&) = delete;

  Proposals proposals;

 private:
  DropDownList& list_;
  int observation_;
};

ListProposals::Watched& ListProposals::watched(DropDownList& list) {
  std::shared_ptr<Watched>& known = watched_[&list];
  if (known == nullptr) known = std::make_shared<Watched>(list, locale_);
  return *known;
}

void ListProposals::propose(const Json& line) {
  const std::string on = textMember(line, "on");
  const std::string text = textMember(line, "text");
  auto* list = dynamic_cast<DropDownList*>(&forms_.control(on));
  if (list == nullptr) throw BadLine("\"" + on + "\" is no list.");
  Proposals& proposals = watched(*list).proposals;
  proposals.propose(text);
  Json rows = Json::array();
  for (const int row : proposals.rows()) {
    rows.push_back({{"row", row}, {"text", list->rows()[static_cast<std::size_t>(row)]}});
  }
  send_({{"event", "proposals"}, {"on", on}, {"text", text}, {"rows", std::move(rows)}});
}

}  // namespace awizo::protocol
