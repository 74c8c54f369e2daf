#include "desk/scanner_switch.h"

#include <utility>

#include "desk/desk_settings.h"

namespace awizo {

ScannerSwitch::ScannerSwitch(LineFinder& finder, SettingsStore& settings, PackUnit packUnit)
    : finder_(finder), settings_(settings), packUnit_(std::move(packUnit)) {
  follow(awizo::isOn(settings_, DeskSwitch::scannerPacks));
}

void ScannerSwitch::turn(bool on) {
  setOn(settings_, DeskSwitch::scannerPacks, on);
  follow(on);
}

}  // namespace awizo
