#pragma once

#include <memory>

#include "adapters/libxml2/libxml2.h"
#include "hosts/common/given_host.h"
#include "hosts/headless/machine.h"
#include "hosts/version.h"
#include "platform/forms/platform.h"

namespace awizo::headless {

/// The machine and the options as surroundings, for work without a control.
struct QuietSurroundings {
  QuietSurroundings(const Options& options, Machine& machine, ScreenFace& face)
      : locale(machine.locale(localeName(options, machine))),
        page(options),
        bag(options),
        settings(machine.settings(options)),
        clock(machine.clock(options)),
        platform{.xml = xml,
                 .http = machine.http(),
                 .page = page,
                 .bag = bag,
                 .host = host,
                 .settings = *settings,
                 .files = machine.files(),
                 .clock = *clock,
                 .locale = *locale,
                 .screenFace = face,
                 .version = programVersion} {}

  Libxml2 xml;
  std::unique_ptr<Locale> locale;
  OptionsPage page;
  OptionsBag bag;
  ReportingHost host{[](std::string_view) {}};
  std::unique_ptr<SettingsStore> settings;
  std::unique_ptr<Clock> clock;
  Platform platform;
};

}  // namespace awizo::headless
