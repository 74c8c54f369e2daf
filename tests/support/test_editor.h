#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "adapters/icu/icu_locale.h"
#include "adapters/libxml2/libxml2.h"
#include "adapters/memory/fixed_clock.h"
#include "adapters/memory/settings_in_memory.h"
#include "platform/forms/platform.h"
#include "platform/forms/screen.h"
#include "session/record/awizo_form.h"
#include "session/record/editor.h"
#include "session/record/session_state.h"
#include "support/fake_host.h"
#include "support/fake_http.h"
#include "support/memory_files.h"
#include "support/scripted_screen.h"

namespace awizo::test {

/// Parts that a test puts in place of the played ones; null for those that stay.
struct OtherParts {
  const Xml* xml = nullptr;
  SettingsStore* settings = nullptr;
  ScreenFace* screenFace = nullptr;
};

/// The surroundings of a control: XML and locale are the real ones, all else is played. A test
/// reads and sets the parts directly.
struct TestSurroundings {
  /// `localeName`: "ru_RU", "en_US", ...
  explicit TestSurroundings(std::string_view localeName = "ru_RU");

  ScriptedScreen face;  ///< the user: boxes seen, answers to come
  Libxml2 xml;
  IcuLocale locale;
  FakeHttp http;
  FakePage page;  ///< no page until its texts are set
  FakeBag bag;
  FakeControlHost host;
  SettingsInMemory settings;
  MemoryFiles files;
  FixedClock clock{{makeDate(2026, 11, 21), {10, 15, 0}}};
  Platform platform{platformWith({})};

  Platform platformWith(const OtherParts& others);

  /// A document from text; the test fails when the text is no XML.
  std::unique_ptr<XmlDocument> document(std::string_view text) const;
};

/// A whole editor on played surroundings, as it is between the user's actions: the main form is
/// shown, the decimal separator is known, and everything else is as a new record has it. Without
/// the control, no event of the form is connected: call the procedures.
struct TestEditor : TestSurroundings {
  explicit TestEditor(std::string_view localeName = "ru_RU");

  Screen screen{face};
  SessionState session;
  AwizoForm form;
  Editor editor;

  /// Puts rows of texts into a table from row 1 on, from column 0 on; the table then has as many
  /// rows (an empty one if there are none). Counters are the test's to set.
  static void fill(Table& table, const std::vector<std::vector<std::string>>& rows);
  /// Texts of one data row.
  static std::vector<std::string> row(const Table& table, int row);
};

}  // namespace awizo::test
