#include "hosts/headless/control_members.h"

namespace awizo::headless {

Json controlMembers(const AwizoForm& form) {
  return {{"PartnersUrl", form.PartnersUrl},
          {"UploadUrl", form.UploadUrl},
          {"OrderDataUrl", form.OrderDataUrl},
          {"HeaderBuyerILN", form.HeaderBuyerILN},
          {"HeaderBuyerName", form.HeaderBuyerName},
          {"HeaderSellerILN", form.HeaderSellerILN},
          {"HeaderSellerName", form.HeaderSellerName},
          {"ValidLineCount", form.ValidLineCount},
          {"GridRowHeight", form.GridRowHeight},
          {"LastSentNumber", form.LastSentNumber},
          {"LastPackageSerial", form.LastPackageSerial},
          {"OrderAnswer", form.OrderAnswer},
          {"DeliveryILN", form.DeliveryILN},
          {"BadColumnName", form.BadColumnName},
          {"WeightComplete", form.WeightComplete}};
}

}  // namespace awizo::headless
