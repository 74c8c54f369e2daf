#include "assistants/package_adding.h"

#include "platform/text.h"

namespace awizo {
namespace {

/// What the user does in the dialog of a new package.
void fill(DlgSzczegoly& dialog, const PackagePlan& plan, const std::string& description) {
  dialog.cboxPackageType.userChoose(plan.type);
  dialog.txtPackageDesc.userType(description);
  if (plan.parent >= 0) dialog.cboxParentPackage.userChoose(plan.parent);
  const auto type = [](TextField& field, const std::string& text) {
    if (!text.empty()) field.userType(text);
  };
  type(dialog.txtPackageWeight, plan.weight);
  type(dialog.txtPackageLength, plan.length);
  type(dialog.txtPackageWidth, plan.width);
  type(dialog.txtPackageHeight, plan.height);
  if (!plan.deliveryPlace.empty()) dialog.cboxILNLokalizacji.userType(plan.deliveryPlace);
  dialog.btnDodaj.userPress();
}

/// What the control said against it; empty where the package is there.
std::string add(const Assistance& with, const PackagePlan& plan, const std::string& description) {
  DlgSzczegoly& dialog = with.control.dlgSzczegoly;
  with.face.takeSaid();
  const auto acting = with.face.actInstead([&](Form& form) {
    if (&form != &dialog) return;
    if (with.numbers != nullptr) with.numbers->opened();
    fill(dialog, plan, description);
  });
  with.control.form.btnDodajOpak.userPress();
  if (with.numbers != nullptr) with.numbers->closed();
  const std::vector<std::string> said = with.face.takeSaid();
  return said.empty() ? "" : said.front();
}

}  // namespace

AssistantReport addPackages(const Assistance& with, const PackagePlan& plan, const GoOn& goOn) {
  AssistantReport report{.all = plan.count};
  if (with.numbers != nullptr) with.numbers->prepare(static_cast<std::size_t>(plan.count));
  const auto step = with.history.asOneStep("добавление нескольких упаковок");
  for (const std::string& description : descriptionsOf(plan, with.control.editor)) {
    if (goOn && !goOn(report.done, report.all)) {
      report.isStopped = true;
      break;
    }
    if (std::string why = add(with, plan, description); !why.empty()) {
      report.notDone.push_back({description, std::move(why)});
      break;
    }
    ++report.done;
  }
  return report;
}

std::string addingWords(const AssistantReport& report) {
  if (report.done == report.all) return "";
  std::string words = joined({"Добавлено упаковок: ", std::to_string(report.done), " из ",
                              std::to_string(report.all), "."});
  for (const NotDone& refused : report.notDone) {
    words += joined({"\r\n«", refused.what, "»: ", refused.why});
  }
  return words;
}

}  // namespace awizo
