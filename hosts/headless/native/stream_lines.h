#pragma once

#include <iosfwd>

#include "hosts/headless/lines.h"

namespace awizo::headless {

/// Lines of two streams, which outlive it.
class StreamLines final : public Lines {
 public:
  StreamLines(std::istream& in, std::ostream& out) : in_(in), out_(out) {}
  void writeText(std::string_view line) override;

 protected:
  std::optional<std::string> next() override;

 private:
  std::istream& in_;
  std::ostream& out_;
};

}  // namespace awizo::headless
