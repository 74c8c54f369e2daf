#pragma once

#include "desk/packing_overview.h"
#include "hosts/protocol/values/json.h"

namespace awizo::headless {

/// {"summary":"упаковано 12 из 25 строк",
///  "lines":[{"row":1,"number":"1","name":"Молоко","packed":"4 из 8,25","isWhole":false}, ...],
///  "places":[{"level":1,"package":1,"line":0,"serial":"2","name":"Короб","quantity":"12 шт."},
///  ...]}
protocol::Json packingJson(const PackingOverview& overview);

}  // namespace awizo::headless
