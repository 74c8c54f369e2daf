#pragma once

#include <string>
#include <string_view>

#include "tests/support/control/test_control.h"

namespace awizo::fuzz {

/// A whole control on played surroundings. The user answers Yes to every question and closes what
/// opens, unless the target says what he does.
class FuzzedControl : public test::TestControl {
 public:
  explicit FuzzedControl(std::string_view localeName = "ru_RU");

  /// The bodies of the service's documents, without an XML declaration.
  struct Documents {
    std::string_view catalogue, places, order;
  };

  void startOffLine();
  void startOnLine(const Documents& documents);

  /// The bytes of a file of the project's samples; read once.
  static const std::string& sample(const std::string& name);

  /// What the tables hold as a despatch advice; the empty text where a message said that there is
  /// none. A document that doesn't parse is a broken promise.
  std::string written();
  /// The user picks this file for reading, or names it for saving.
  void readFile(std::string_view name);

  static constexpr std::string_view documentFolder = "c:\\docs";
};

/// The text after an XML declaration.
std::string_view withoutDeclaration(std::string_view text);

}  // namespace awizo::fuzz
