#pragma once

#include <string>

namespace awizo {

/// What became of the document, reported to whoever shows it.
struct Deed {
  enum class Kind {
    refused,     ///< the start ended without an editor; `text` says why, in Russian
    ordered,     ///< an order came from the service
    noOrder,     ///< the service was asked and no order waits
    read,        ///< from the file of the classic path `text`
    notRead,     ///< the file was refused, and the form is empty
    saved,       ///< to the file of the classic path `text`
    sent,        ///< the service has accepted it
    unanswered,  ///< it was sent, and no answer came that can be read: it may have arrived
    filled,      ///< a value was written over `lines` lines
  };

  Kind kind;
  std::string text = {};
  int lines = 0;

  /// Whether the document, as it is then, would not be lost with the form.
  bool keepsDocument() const {
    return kind == Kind::read || kind == Kind::notRead || kind == Kind::saved || kind == Kind::sent;
  }
};

}  // namespace awizo
