#pragma once

#include <string>
#include <string_view>

namespace awizo {

/// The document of the page that hosts the control. A host without one raises an error on reading.
class HostPage {
 public:
  virtual ~HostPage() = default;
  virtual std::string url() = 0;
  virtual std::string cookie() = 0;
};

/// The host's store of the control's properties. A property that it doesn't hold reads as empty.
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  virtual std::string read(std::string_view name) = 0;
  virtual void write(std::string_view name, std::string_view value) = 0;
};

/// What the control reports to its host.
class ControlHost {
 public:
  virtual ~ControlHost() = default;
  virtual void propertyChanged(std::string_view name) = 0;
};

}  // namespace awizo
