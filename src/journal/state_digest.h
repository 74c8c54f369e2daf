#pragma once

#include <cstdint>

#include "session/awizo_wysylki.h"

namespace awizo::journal {

/// One number for all that the control holds: every model of every form, the session's record, the
/// members of control and dialogs. Left out is what differs from day to day in the same work: the
/// cookie, the addresses of the service, the diagnostic log.
std::uint64_t stateDigest(AwizoWysylki& control);

}  // namespace awizo::journal
