#include "linedialog/sort.h"
#include "packagedialog/dlg_szczegoly.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "service/transport.h"

namespace awizo {

void DlgSzczegoly::LoadLocalizationDictionary() {
  reportErrors(screen(), "Произошла ошибка в LoadLocalizationDictionary() (Opak)", [&] {
    const SessionState& session = editor_.session;
    DebugLog& log = editor_.session.log;
    cboxLokalizacja.setStyle(ListStyle::freeTyping);
    log.WriteDebugLine(std::string("LoadLocalizationDictionary: xml_loc_loaded = ") +
                       (session.LocalizationsLoaded ? "True" : "False"));
    if (!session.LocalizationsLoaded) return;
    log.WriteDebugLine("Form_Load start przetwarzania slownika lokalizacji");
    const XmlNode root = session.LocalizationsDom->root();
    const XmlNode catalogue =
        root ? root.selectSingle("document-content/Document-LocalizationsCatalog") : XmlNode{};
    if (catalogue) readLocalizations(catalogue);
    log.WriteDebugLine("Form_Load przetworzono slownik lokalizacji");
  });
}

// The lists offer one entry less than the catalogue holds: the last in sorted order stays out.
void DlgSzczegoly::readLocalizations(const XmlNode& catalogue) {
  const std::vector<XmlNode> entries = catalogue.selectSingle("localizations").children();
  const std::size_t last = entries.empty() ? 0 : entries.size() - 1;
  if (last > 0) cboxLokalizacja.setStyle(ListStyle::matchRequired);
  LocalizationNumbers.assign(last + 1, "");
  LocalizationOrder.assign(last + 1, 0);
  LocalizationIlns.assign(last + 1, "");
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const bool isPlace = entries[i].isElement("localization");
    const XmlNode place = isPlace ? entries[i] : XmlNode{};
    LocalizationNumbers[i] = GetNodeValue(place, "number", false);
    LocalizationOrder[i] = narrow32(static_cast<std::int64_t>(i));
    LocalizationIlns[i] = GetNodeValue(place, "iln", false);
  }
  Sorter(screen(), editor_.conversions)
      .QuickSortU(LocalizationNumbers, LocalizationOrder, 0,
                  narrow32(static_cast<std::int64_t>(entries.size()) - 1),
                  narrow32(static_cast<std::int64_t>(entries.size())));
  for (std::size_t i = 0; i < last; ++i) {
    const auto entry = static_cast<std::size_t>(LocalizationOrder[i]);
    cboxLokalizacja.addRow(LocalizationNumbers[entry]);
    cboxILNLokalizacji.addRow(LocalizationIlns[entry]);
  }
}

}  // namespace awizo
