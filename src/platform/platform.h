#pragma once

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/http.h"
#include "platform/locale.h"
#include "platform/settings.h"
#include "platform/xml.h"

namespace awizo {

class Screen;

struct ProgramVersion {
  int major = 0;
  int minor = 0;
  int revision = 0;
};

/// All that the system asks of its surroundings. The host makes the parts and keeps them alive.
struct Platform {
  const Xml& xml;
  Http& http;
  HostPage& page;
  PropertyBag& bag;
  ControlHost& host;
  SettingsStore& settings;
  Files& files;
  const Clock& clock;
  const Locale& locale;
  Screen& screen;
  ProgramVersion version;
};

}  // namespace awizo
