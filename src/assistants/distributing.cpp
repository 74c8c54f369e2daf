#include "assistants/distributing.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "desk/line_words.h"
#include "platform/text.h"
#include "tables/columns/columns.h"

namespace awizo {
namespace {

/// Units of what can be divided; all others are counted, and so is a line without a unit.
constexpr std::array<std::string_view, 5> measures{"KGM", "MTR", "KMT", "TNE", "LTR"};
/// A box that lists more is too high for a screen.
constexpr std::size_t mostListed = 12;

/// What the user does with one line.
class LinePacking {
 public:
  LinePacking(const Assistance& with, const DistributionChoice& choice, const LinePlan& plan)
      : with_(with), choice_(choice), plan_(plan) {}

  /// What the control said against it; empty where all parts of the line are in.
  std::string pack() {
    const auto acting = with_.face.actInstead([this](Form& form) { act(form); });
    with_.control.form.grdPozycje.userRow(plan_.row);
    with_.face.takeSaid();
    with_.control.form.btnEdytuj.userPress();
    if (isAccepted_) return "";
    const std::vector<std::string> said = with_.face.takeSaid();
    return said.empty() ? "строка не принята" : said.back();
  }

 private:
  void act(Form& form) {
    if (&form == &with_.control.dlgDodaj) packInto(with_.control.dlgDodaj);
    if (&form == &with_.control.dlgdodajPule) put(with_.control.dlgdodajPule);
  }

  void packInto(DlgDodaj& dialog) {
    for (const PlannedPart& part : plan_.parts) {
      part_ = &part;
      isPut_ = false;
      if (part.replaced > 0) {
        dialog.grdPozycje.userRow(part.replaced);
        dialog.Command2.userPress();
      }
      dialog.Command1.userPress();
      if (!isPut_) return;
    }
    with_.face.takeSaid();
    dialog.btnDodaj.userPress();
    isAccepted_ = !dialog.shown();
  }

  void put(DlgdodajPule& dialog) {
    dialog.cboxPackages.userChoose(choice_.packages[part_->package] - 1);
    // What was said when it opened was about a quantity that nobody has typed.
    with_.face.takeSaid();
    dialog.txtQuantity.userType(quantityWords(with_.control.editor.conversions, part_->quantity));
    // A quantity that it doesn't let through, it has replaced by another.
    if (std::vector<std::string> said = with_.face.takeSaid(); !said.empty()) {
      throw Refused(said.front());
    }
    dialog.btnDodaj.userPress();
    isPut_ = !dialog.shown();
  }

  const Assistance& with_;
  const DistributionChoice& choice_;
  const LinePlan& plan_;
  const PlannedPart* part_ = nullptr;
  bool isPut_ = false;
  bool isAccepted_ = false;
};

}  // namespace

std::vector<LinePlan> plansOf(const Editor& editor, const DistributionChoice& choice) {
  const Table& lines = editor.form.grdPozycje;
  const Conversions& conversions = editor.conversions;
  std::vector<LinePlan> plans;
  for (const int row : choice.lines) {
    LineRest rest{.row = row};
    rest.despatched = thousandthsIn(conversions, lines.cell(row, GRD_POZ_QTY_DESPATCHED));
    rest.packed = thousandthsIn(conversions, lines.cell(row, GRD_POZ_PACKED_QTY));
    rest.isCounted = std::ranges::find(measures, lines.cell(row, GRD_POZ_UNIT)) == measures.end();
    LinePlan plan = planOf(rest, choice.packages.size(), choice.spread, choice.each);
    if (!plan.parts.empty() || !leftWords(editor, plan).empty()) plans.push_back(std::move(plan));
  }
  return plans;
}

std::string leftWords(const Editor& editor, const LinePlan& plan) {
  const std::string& despatched = editor.form.grdPozycje.cell(plan.row, GRD_POZ_QTY_DESPATCHED);
  if (!editor.conversions.isNumeric(despatched)) return "отгруженное количество не число";
  if (plan.left <= 0) return "";
  return joined({"осталось ", quantityWords(editor.conversions, plan.left),
                 ": меньше единицы в упаковку не положить"});
}

std::string namedLine(const Editor& editor, int row) {
  const Table& lines = editor.form.grdPozycje;
  return joined({"Строка ", lines.cell(row, GRD_POZ_LP), " (", lines.cell(row, GRD_POZ_NAME), ")"});
}

Thousandths thousandthsIn(const Conversions& conversions, const std::string& text) {
  return std::llround(conversions.MyDouble(text) * 1000);
}

std::string quantityWords(const Conversions& conversions, Thousandths quantity) {
  const std::string digits = std::to_string(1000 + quantity % 1000).substr(1);
  return shortNumber(conversions, conversions.NormalizeDecimal(
                                      joined({std::to_string(quantity / 1000), ".", digits}), 3));
}

AssistantReport distribute(const Assistance& with, const DistributionChoice& choice,
                           const std::vector<LinePlan>& plans, const GoOn& goOn,
                           const std::string& step) {
  const Editor& editor = with.control.editor;
  AssistantReport report;
  for (const LinePlan& plan : plans) report.all += plan.parts.empty() ? 0 : 1;
  const auto one = with.history.asOneStep(step);
  for (const LinePlan& plan : plans) {
    std::string why = leftWords(editor, plan);
    if (!plan.parts.empty()) {
      if (goOn && !goOn(report.done, report.all)) {
        report.isStopped = true;
        break;
      }
      const std::string refusal = LinePacking(with, choice, plan).pack();
      if (refusal.empty()) {
        ++report.done;
      } else {
        why = refusal;
      }
    }
    if (!why.empty()) report.notDone.push_back({namedLine(editor, plan.row), std::move(why)});
  }
  return report;
}

std::string distributionWords(const AssistantReport& report) {
  if (report.done == report.all && report.notDone.empty()) return "";
  std::string words = joined(
      {"Разложено строк: ", std::to_string(report.done), " из ", std::to_string(report.all), "."});
  for (std::size_t i = 0; i < report.notDone.size() && i < mostListed; ++i) {
    words += joined({"\r\n", report.notDone[i].what, ": ", report.notDone[i].why});
  }
  if (report.notDone.size() > mostListed) {
    words += joined({"\r\nи ещё ", std::to_string(report.notDone.size() - mostListed)});
  }
  return words;
}

}  // namespace awizo
