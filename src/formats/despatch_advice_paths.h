#pragma once

#include <string_view>

namespace awizo {

// Where writer and reader of a despatch advice meet.
inline constexpr std::string_view consignmentPath =
    "/Document-DespatchAdvice/DespatchAdvice-Consignment";
inline constexpr std::string_view despatchLinesPath =
    "/Document-DespatchAdvice/DespatchAdvice-Lines";
inline constexpr std::string_view sellerIlnPath =
    "/Document-DespatchAdvice/DespatchAdvice-Parties/Seller/ILN";
inline constexpr std::string_view buyerIlnPath =
    "/Document-DespatchAdvice/DespatchAdvice-Parties/Buyer/ILN";

}  // namespace awizo
