#pragma once

#include <string>
#include <string_view>

namespace awizo::libxml2 {

/// The first line of a document, if it has one, and the encoding that it names, if it does.
struct Declaration {
  bool present = false;
  std::string encoding;
};

/// The declaration with which a well-formed document begins, whatever it is encoded in.
Declaration declarationOf(std::string_view bytes);

}  // namespace awizo::libxml2
