#pragma once

#include <string_view>

namespace awizo {

/// The heading of the user guide's chapter about the form of this name; empty for its beginning.
constexpr std::string_view guideChapter(std::string_view form) {
  if (form == "DlgDodaj" || form == "DlgdodajPule" || form == "DlgIsoCodes" ||
      form == "DistributionDialog") {
    return "Товарные позиции";
  }
  if (form == "DlgSzczegoly" || form == "NumberRangeDialog" || form == "PackagesDialog") {
    return "Упаковки";
  }
  if (form == "DlgWczytajZapisz") return "Сохранить, открыть, отправить";
  if (form == "FaultList" || form == "FindDialog") return "Найти и проверить";
  if (form == "PapersDialog") return "Этикетки и упаковочный лист";
  return "";
}

}  // namespace awizo
