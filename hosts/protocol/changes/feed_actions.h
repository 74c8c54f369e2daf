#pragma once

#include "hosts/protocol/changes/change_feed.h"
#include "hosts/protocol/dispatcher.h"

namespace awizo::protocol {

// What a client says of its feed:
//   {"do":"subscribe","forms":["AwizoWysylki"]}            without "forms": to all
//   {"do":"unsubscribe","forms":["DlgDodaj"]}
//   {"do":"see","on":"grdPozycje","first":40,"count":30}   the rows that it shows

/// Lets lines say so. Directory and feed outlive the dispatcher.
void addFeedActions(Dispatcher& dispatcher, const FormDirectory& forms, ChangeFeed& feed);

}  // namespace awizo::protocol
