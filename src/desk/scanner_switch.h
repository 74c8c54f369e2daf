#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "desk/line_finder.h"
#include "platform/settings.h"

namespace awizo {

/// The switch by which a scanned product is put into the current package in place of going to its
/// line. The settings keep it.
class ScannerSwitch {
 public:
  /// Puts one unit in; returns words for the user.
  using PackUnit = std::function<std::string(std::string_view ean)>;

  /// Stands as it was kept. Both outlive it.
  ScannerSwitch(LineFinder& finder, SettingsStore& settings, PackUnit packUnit);

  bool isOn() const { return finder_.takeProduct != nullptr; }
  void turn(bool on);

 private:
  void follow(bool on) { finder_.takeProduct = on ? packUnit_ : nullptr; }

  LineFinder& finder_;
  SettingsStore& settings_;
  PackUnit packUnit_;
};

}  // namespace awizo
