#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "adapters/curl/curl_http.h"
#include "adapters/icu/icu_locale.h"
#include "adapters/libxml2/libxml2.h"
#include "adapters/posix/clocks.h"
#include "adapters/posix/posix_files.h"
#include "assistants/assisted_face.h"
#include "hosts/common/given_host.h"
#include "hosts/common/program/recorded_options.h"
#include "hosts/desktop/window/host_screen_face.h"
#include "hosts/desktop/window/waiting.h"
#include "journal/loading.h"
#include "journal/taped_platform.h"
#include "platform/forms/platform.h"
#include "platform/record_folder.h"

namespace awizo::desktop {

/// Where a session is recorded, and what it goes on with.
struct GivenRecords {
  RecordFolder* folder = nullptr;          ///< null: nothing is recorded
  RecordHeader header = {};                ///< of the new record
  journal::RecordedSession replayed = {};  ///< done before the user's turn comes
  std::string replayedName = {};           ///< its record, removed once it has been done
  journal::AskedToday today = {};
};

/// What a program gives to a widget that shows forms. All of it outlives the widget.
struct GivenParts {
  PropertyBag& bag;
  HostPage& page;
  SettingsStore& settings;
  std::string locale = {};       ///< "ru_RU"; empty: the environment's
  const Clock* clock = nullptr;  ///< null: the machine's
  Http* http = nullptr;          ///< null: the network
  GivenRecords records = {};
  /// Of the paths of the files that hold the firm's package numbers; empty: it has none.
  std::string numbersBeginning = {};
};

/// The platform of the forms in one widget: what the program gave, and the machine for the rest.
struct Surroundings {
  /// `propertyChanged`: called when the control reports a property as changed.
  Surroundings(const GivenParts& given, QWidget& widget,
               std::function<void(std::string_view)> propertyChanged);
  Surroundings(const Surroundings&) = delete;
  Surroundings& operator=(const Surroundings&) = delete;

  Waiting waiting;
  HostScreenFace face;
  AssistedFace assistedFace;  ///< over the other; it is the platform's
  Libxml2 xml;
  IcuLocale locale;
  CurlHttp network;
  PosixFiles files;
  SystemClock machineClock;
  ReportingHost host;
  Platform platform;
};

/// The name of the locale, the environment's where none is given.
std::string chosenLocale(const std::string& given);

}  // namespace awizo::desktop
