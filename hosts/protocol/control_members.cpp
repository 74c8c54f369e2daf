#include "hosts/protocol/control_members.h"

#include "session/record/properties.h"

namespace awizo::protocol {

namespace {

Json propertiesOf(const AwizoWysylki& control) {
  Json json{{"Enabled", control.Enabled()}};
  for (const std::string_view name : properties::names) json[name] = control.property(name);
  return json;
}

Json members(const AwizoForm& form) {
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

}  // namespace

Json controlMembers(const AwizoWysylki& control) {
  Json json = propertiesOf(control);
  json.update(members(control.form));
  return json;
}

Json membersOf(const DlgDodaj& dialog) {
  return {{"DlgResult", dialog.DlgResult},         {"LinePartnerName", dialog.LinePartnerName},
          {"LinePeriod", dialog.LinePeriod},       {"LinePeriodFormat", dialog.LinePeriodFormat},
          {"LineFromOrder", dialog.LineFromOrder}, {"LineOrderNumber", dialog.LineOrderNumber},
          {"LineWeight", dialog.LineWeight}};
}

Json membersOf(const DlgdodajPule& dialog) {
  Json json = Json::object();
  json["DlgResult"] = dialog.DlgResult;
  return json;
}

Json membersOf(const DlgSzczegoly& dialog) {
  return {{"DialogResult", dialog.DialogResult},
          {"ParentSerial", dialog.ParentSerial},
          {"AddMode", dialog.AddMode},
          {"LocalizationsFilled", dialog.LocalizationsFilled}};
}

}  // namespace awizo::protocol
