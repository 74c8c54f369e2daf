#include "packagedialog/localization_dictionary.h"

#include <algorithm>
#include <numeric>

#include "platform/narrow.h"
#include "service/transport.h"

namespace awizo {

void LocalizationDictionary::read(const std::vector<XmlNode>& entries, Sorter& sorter) {
  const std::size_t size = std::max<std::size_t>(entries.size(), 1);
  LocalizationNumbers.assign(size, "");
  LocalizationIlns.assign(size, "");
  LocalizationOrder.resize(size);
  std::iota(LocalizationOrder.begin(), LocalizationOrder.end(), 0);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const XmlNode place = entries[i].isElement("localization") ? entries[i] : XmlNode{};
    LocalizationNumbers[i] = GetNodeValue(place, "number", false);
    LocalizationIlns[i] = GetNodeValue(place, "iln", false);
  }
  const std::int32_t count = narrow32(static_cast<std::int64_t>(entries.size()));
  sorter.QuickSortU(LocalizationNumbers, LocalizationOrder, 0, count - 1, count);
}

std::vector<std::string> LocalizationDictionary::offered(
    const std::vector<std::string>& texts) const {
  std::vector<std::string> rows;
  for (std::size_t i = 0; i + 1 < LocalizationOrder.size(); ++i) {
    rows.push_back(texts[static_cast<std::size_t>(LocalizationOrder[i])]);
  }
  return rows;
}

}  // namespace awizo
