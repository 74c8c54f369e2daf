#include "hosts/headless/packing_records.h"

namespace awizo::headless {

protocol::Json packingJson(const PackingOverview& overview) {
  protocol::Json lines = protocol::Json::array();
  for (const PackingLine& line : overview.lines) {
    lines.push_back({{"row", line.row},
                     {"number", line.number},
                     {"name", line.name},
                     {"packed", line.packed},
                     {"isWhole", line.isWhole}});
  }
  protocol::Json places = protocol::Json::array();
  for (const PackingPlace& place : overview.places) {
    places.push_back({{"level", place.level},
                      {"package", place.package},
                      {"line", place.line},
                      {"serial", place.serial},
                      {"name", place.name},
                      {"quantity", place.quantity}});
  }
  return {
      {"summary", overview.summary}, {"lines", std::move(lines)}, {"places", std::move(places)}};
}

}  // namespace awizo::headless
