#pragma once

namespace awizo {

// Columns of grdPozycje, the lines.
inline constexpr int GRD_POZ_LP = 0;
inline constexpr int GRD_POZ_EAN = 1;
inline constexpr int GRD_POZ_NAME = 2;
inline constexpr int GRD_POZ_QTY_ORDERED = 3;
inline constexpr int GRD_POZ_QTY_DESPATCHED = 4;
inline constexpr int GRD_POZ_PRICE = 5;
inline constexpr int GRD_POZ_CODE_BY_BUYER = 6;
inline constexpr int GRD_POZ_CODE_BY_SELLER = 7;
inline constexpr int GRD_POZ_WEIGHT = 8;
inline constexpr int GRD_POZ_UNIT = 9;
inline constexpr int GRD_POZ_ORDER_LINE = 10;
inline constexpr int GRD_POZ_NET_AMOUNT = 11;
inline constexpr int GRD_POZ_TAX_RATE = 12;
inline constexpr int GRD_POZ_TAX_CATEGORY = 13;
inline constexpr int GRD_POZ_EXPIRY_DATE = 14;
inline constexpr int GRD_POZ_COUNTRY = 15;
inline constexpr int GRD_POZ_CDN = 16;
inline constexpr int GRD_POZ_PRODUCTION_DATE = 17;
inline constexpr int GRD_POZ_PERIOD = 18;
inline constexpr int GRD_POZ_PERIOD_FORMAT = 19;
inline constexpr int GRD_POZ_PACK_REFS = 20;
inline constexpr int GRD_POZ_PACKED_QTY = 21;

// Columns of grdOpakowania, the packages.
inline constexpr int GRD_OPAK_LP = 0;
inline constexpr int GRD_OPAK_PARENT_DESC = 1;
inline constexpr int GRD_OPAK_ID_LOW = 2;
inline constexpr int GRD_OPAK_DESC = 3;
inline constexpr int GRD_OPAK_LEVEL = 4;
inline constexpr int GRD_OPAK_WEIGHT = 5;
inline constexpr int GRD_OPAK_WIDTH = 6;
inline constexpr int GRD_OPAK_HEIGHT = 7;
inline constexpr int GRD_OPAK_PARENT_SERIAL = 8;
inline constexpr int GRD_OPAK_TYPE = 9;
inline constexpr int GRD_OPAK_SERIAL_NUMBER = 10;
inline constexpr int GRD_OPAK_LOCATION_ILN = 11;
inline constexpr int GRD_OPAK_LENGTH = 12;
inline constexpr int GRD_OPAK_SERIAL = 13;

// Columns of grdSuma, the totals.
inline constexpr int GRD_SUMA_LINE_COUNT = 0;
inline constexpr int GRD_SUMA_QTY_DESPATCHED = 1;
inline constexpr int GRD_SUMA_NET_AMOUNT = 2;

}  // namespace awizo
