#pragma once

#include <functional>
#include <map>
#include <memory>

#include "hosts/protocol/form_directory.h"
#include "hosts/protocol/values/json.h"
#include "platform/forms/proposals.h"
#include "platform/locale.h"

namespace awizo::protocol {

/// The rows of a list that fit what its user has typed, for a client that doesn't hold all rows:
///   {"do":"propose","on":"DlgDodaj.cboxNazwaProd","text":"чай"}
///   {"event":"proposals","on":"DlgDodaj.cboxNazwaProd","text":"чай",
///    "rows":[{"row":5,"text":"Чай чёрный"}, ...]}
/// An empty text has no proposals; it makes a long list ready for the first key.
class ListProposals {
 public:
  using Send = std::function<void(const Json& event)>;

  /// Forms and locale outlive it.
  ListProposals(const FormDirectory& forms, const Locale& locale, Send send)
      : forms_(forms), locale_(locale), send_(std::move(send)) {}

  void propose(const Json& line);

 private:
  class Watched;

  Watched& watched(DropDownList& list);

  const FormDirectory& forms_;
  const Locale& locale_;
  Send send_;
  std::map<const Control*, std::shared_ptr<Watched>> watched_;
};

}  // namespace awizo::protocol
