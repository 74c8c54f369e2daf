#pragma once

namespace awizo {

/// What the control and the service exchange.
enum class Exchange { partnerInfo, productCatalogue, deliveryPlaces, order, sending };

}  // namespace awizo
