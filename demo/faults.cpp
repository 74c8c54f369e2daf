#include "demo/faults.h"

#include <algorithm>
#include <charconv>

namespace awizo::demo {

namespace {

constexpr std::array<std::pair<std::string_view, FaultKind>, 7> kindNames{{
    {"none", FaultKind::none},
    {"drop", FaultKind::drop},
    {"cut", FaultKind::cut},
    {"garbage", FaultKind::garbage},
    {"empty", FaultKind::empty},
    {"status500", FaultKind::status500},
    {"slow", FaultKind::slow},
}};

std::optional<Fault> slowFor(std::string_view milliseconds) {
  int count = 0;
  const char* end = milliseconds.data() + milliseconds.size();
  const auto [stop, error] = std::from_chars(milliseconds.data(), end, count);
  if (error != std::errc{} || stop != end || count < 0) return std::nullopt;
  return Fault{FaultKind::slow, std::chrono::milliseconds(count)};
}

std::optional<Fault> parseFault(std::string_view text) {
  constexpr std::string_view slowPrefix = "slow:";
  if (text.starts_with(slowPrefix)) return slowFor(text.substr(slowPrefix.size()));
  const auto name =
      std::ranges::find(kindNames, text, [](const auto& entry) { return entry.first; });
  if (name == kindNames.end()) return std::nullopt;
  return Fault{name->second, std::nullopt};
}

}  // namespace

std::optional<FaultSetting> parseFaultSetting(std::string_view text) {
  const auto equals = text.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const auto exchange = exchangeNamed(text.substr(0, equals));
  const auto fault = parseFault(text.substr(equals + 1));
  if (!exchange || !fault) return std::nullopt;
  return FaultSetting{*exchange, *fault};
}

void Faults::set(const FaultSetting& setting) {
  const std::lock_guard lock(mutex_);
  faults_[static_cast<std::size_t>(setting.exchange)] = setting.fault;
}

void Faults::clear() {
  const std::lock_guard lock(mutex_);
  faults_.fill(Fault{});
}

Fault Faults::at(Exchange exchange) const {
  const std::lock_guard lock(mutex_);
  return faults_[static_cast<std::size_t>(exchange)];
}

void Faults::hold(const Fault& fault) {
  std::unique_lock lock(mutex_);
  const unsigned releasesBefore = releases_;
  const auto letGo = [&] { return ended_ || releases_ != releasesBefore; };
  ++held_;
  changed_.notify_all();
  if (fault.delay) {
    changed_.wait_for(lock, *fault.delay, letGo);
  } else {
    changed_.wait(lock, letGo);
  }
  --held_;
}

void Faults::release() {
  const std::lock_guard lock(mutex_);
  ++releases_;
  changed_.notify_all();
}

void Faults::releaseForGood() {
  const std::lock_guard lock(mutex_);
  ended_ = true;
  changed_.notify_all();
}

int Faults::waitUntilHeld(std::chrono::milliseconds timeout) {
  std::unique_lock lock(mutex_);
  changed_.wait_for(lock, timeout, [&] { return ended_ || held_ > 0; });
  return held_;
}

}  // namespace awizo::demo
