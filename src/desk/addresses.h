#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/settings.h"

namespace awizo {

/// The parts of an address, as the host's own reader of addresses finds them.
struct AddressParts {
  std::string scheme;       ///< in small letters
  std::string origin;       ///< scheme, host and port; empty where there is no host
  bool wellFormed = false;  ///< nothing in it had to be guessed
};
using SplitAddress = std::function<AddressParts(std::string_view url)>;

/// Whether it is an http or https address with a host.
bool isWebAddress(const SplitAddress& split, std::string_view url);

/// Scheme, host and port: "https://portal.example:8443"; the text itself where it is no address.
std::string originOf(const SplitAddress& split, std::string_view url);

/// The places that a session on line exchanges data with, each once: those of the addresses that
/// the control makes of its page's address and the property PartnerURL.
std::vector<std::string> serviceOrigins(const SplitAddress& split, std::string_view pageUrl,
                                        std::string_view partnerUrl);

/// The places that the user has agreed to talk to, kept in the settings.
class AgreedAddresses {
 public:
  explicit AgreedAddresses(SettingsStore& settings) : settings_(settings) {}

  bool holds(const std::string& origin) const;
  void add(const std::string& origin);

 private:
  SettingsStore& settings_;
};

}  // namespace awizo
