#pragma once

#include <array>

#include "tables/columns/column.h"

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

// The hidden columns' headings are the table's own field names.
inline constexpr std::array lineColumns{
    Column{GRD_POZ_LP, "№ п.п", 525},
    Column{GRD_POZ_EAN, "EAN продукта", 1850, Alignment::centre},
    Column{GRD_POZ_NAME, "Название продукта", 4625, Alignment::centre},
    Column{GRD_POZ_QTY_ORDERED, "Количество заказа"},
    Column{GRD_POZ_QTY_DESPATCHED, "Количество отгружено", 2200},
    Column{GRD_POZ_PRICE, "Цена"},
    Column{GRD_POZ_CODE_BY_BUYER, "CodeByBuer"},
    Column{GRD_POZ_CODE_BY_SELLER, "CodeBySeller"},
    Column{GRD_POZ_WEIGHT, "Weight"},
    Column{GRD_POZ_UNIT, "UnitOfMeasure"},
    Column{GRD_POZ_ORDER_LINE, "OrderLineNumber"},
    Column{GRD_POZ_NET_AMOUNT, "NetAmount"},
    Column{GRD_POZ_TAX_RATE, "TaxRate"},
    Column{GRD_POZ_TAX_CATEGORY, "TaxCategoryCode"},
    Column{GRD_POZ_EXPIRY_DATE, "ExpiryDate"},
    Column{GRD_POZ_COUNTRY, "CountryOfOryginCode"},
    Column{GRD_POZ_CDN, "CustomsDeclarationNumber"},
    Column{GRD_POZ_PRODUCTION_DATE, "ProductionDate"},
    Column{GRD_POZ_PERIOD, "Period"},
    Column{GRD_POZ_PERIOD_FORMAT, "PeriodFormat"},
    Column{GRD_POZ_PACK_REFS, ""},
    Column{GRD_POZ_PACKED_QTY, "Упакованное кол-во", 1900},
};
static_assert(areInOrder(lineColumns));

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

// The column of the package's serial has the same heading as the number that is made of it; only
// the latter is ever visible.
inline constexpr std::array packageColumns{
    Column{GRD_OPAK_LP, "№ п.п", 525},
    Column{GRD_OPAK_PARENT_DESC, ""},
    Column{GRD_OPAK_ID_LOW, "ID упаковки", 1150, Alignment::centre},
    Column{GRD_OPAK_DESC, "Описание упаковки", 4605},
    Column{GRD_OPAK_LEVEL, "Уровень", 950, Alignment::centre},
    Column{GRD_OPAK_WEIGHT, ""},
    Column{GRD_OPAK_WIDTH, ""},
    Column{GRD_OPAK_HEIGHT, ""},
    Column{GRD_OPAK_PARENT_SERIAL, ""},
    Column{GRD_OPAK_TYPE, ""},
    Column{GRD_OPAK_SERIAL_NUMBER, ""},
    Column{GRD_OPAK_LOCATION_ILN, ""},
    Column{GRD_OPAK_LENGTH, ""},
    Column{GRD_OPAK_SERIAL, "ID упаковки", 0, Alignment::centre},
};
static_assert(areInOrder(packageColumns));

// Columns of grdSuma, the totals.
inline constexpr int GRD_SUMA_LINE_COUNT = 0;
inline constexpr int GRD_SUMA_QTY_DESPATCHED = 1;
inline constexpr int GRD_SUMA_NET_AMOUNT = 2;

// The last heading is one of the lines' table; its column is never visible.
inline constexpr std::array totalColumns{
    Column{GRD_SUMA_LINE_COUNT, "Количество строк", 1800, Alignment::centre},
    Column{GRD_SUMA_QTY_DESPATCHED, "Общее количество отгруженного", 3300, Alignment::centre},
    Column{GRD_SUMA_NET_AMOUNT, "Название продукта", 0, Alignment::centre},
};
static_assert(areInOrder(totalColumns));

// Columns of the line dialog's grdPozycje, the packages of the line.
inline constexpr int GRD_PACKAGES_LP = 0;
inline constexpr int GRD_PACKAGES_SERIAL = 1;
inline constexpr int GRD_PACKAGES_DESC = 2;
inline constexpr int GRD_PACKAGES_LEVEL = 3;
inline constexpr int GRD_PACKAGES_QUANTITY = 4;

inline constexpr std::array packageOfLineColumns{
    Column{GRD_PACKAGES_LP, "№ п.п"},
    Column{GRD_PACKAGES_SERIAL, "ID упаковки", 0, Alignment::centre},
    Column{GRD_PACKAGES_DESC, "Описание упаковки", 4605},
    Column{GRD_PACKAGES_LEVEL, "Уровень", 950, Alignment::centre},
    Column{GRD_PACKAGES_QUANTITY, "Количество", 2200, Alignment::right},
};
static_assert(areInOrder(packageOfLineColumns));

// How many columns the main form's tables have: those of lines and packages one more than are used,
// without heading and width. A row's cells are addressed by this count, so it decides how many rows
// fit.
inline constexpr int lineColumnCount = static_cast<int>(lineColumns.size()) + 1;
inline constexpr int packageColumnCount = static_cast<int>(packageColumns.size()) + 1;
inline constexpr int totalColumnCount = static_cast<int>(totalColumns.size());

}  // namespace awizo
