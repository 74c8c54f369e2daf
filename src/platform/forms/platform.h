#pragma once

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/forms/screen_face.h"
#include "platform/host.h"
#include "platform/http.h"
#include "platform/locale.h"
#include "platform/program_version.h"
#include "platform/settings.h"
#include "platform/xml.h"

namespace awizo {

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
  ScreenFace& screenFace;
  ProgramVersion version;
};

}  // namespace awizo
