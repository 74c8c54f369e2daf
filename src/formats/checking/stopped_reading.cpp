#include "formats/checking/stopped_reading.h"

#include "platform/run_time_error.h"

namespace awizo {

Finding stoppedReading(const DocumentMap& map, TracedDocument& document,
                       const std::string& description) {
  const XmlNode last = document.last();
  std::string why = "ошибка " + quoted(description);
  if (description == errors::typeMismatch().description()) {
    why = quoted(last.text()) + " не дата и не время";
  } else if (description == errors::dateOutsidePicker().description()) {
    why = "даты " + quoted(last.text()) + " нет в календаре поля";
  } else if (description == errors::overflow().description()) {
    // A row that has no room fails before anything of it is looked at.
    return map.finding(last, "больше таблица не вмещает, чтение за этим местом прервётся");
  }
  return map.finding(last, why + ", чтение здесь прервётся");
}

}  // namespace awizo
